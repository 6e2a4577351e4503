#include "moments.h"

namespace TestSupport {

QList<Moment> allMoments()
{
    return windowMoments() + dialogMoments();
}

QList<Moment> windowMoments()
{
    return viewMoments() + commandMoments() + connectionMoments() + occupiedMoments();
}

QList<Moment> dialogMoments()
{
    return taskDialogMoments() + groupDialogMoments();
}

bool isFailure(Outcome outcome)
{
    return outcome == Outcome::Silent || outcome == Outcome::Refused || outcome == Outcome::Lost ||
           outcome == Outcome::LostAndBack;
}

bool isGone(Outcome outcome)
{
    return outcome == Outcome::Lost || outcome == Outcome::AnsweredThenLost;
}

} // namespace TestSupport
