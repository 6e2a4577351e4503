#include "plaintooltip.h"

#include <QTextDocument>

namespace Scheduler {

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace Scheduler
