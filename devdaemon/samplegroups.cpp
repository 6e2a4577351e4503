#include "samplestate.h"

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

QList<Group> sampleGroups(const QDateTime &now)
{
    const QString screen = u"task_type.screen_record"_s;
    const QString audio = u"task_type.audio_record"_s;
    const QString test = u"task_type.test"_s;
    const QString topLevel;
    const QDateTime made = now.addDays(-14);

    const auto group = [&made](const QString &id, const QString &type, const QString &name, const QString &color,
                               const QString &parentId, int displayOrder, const QString &description) {
        return Group{id, name, description, color, parentId, type, displayOrder, made, made};
    };
    return {
        group(u"sample-work"_s, screen, u"Work"_s, u"#3498db"_s, topLevel, 1, u"Recordings for the office"_s),
        group(u"sample-meetings"_s, screen, u"Meetings"_s, u"#e67e22"_s, u"sample-work"_s, 1, {}),
        group(u"sample-training"_s, screen, u"研修 🎓"_s, u"#9b59b6"_s, u"sample-work"_s, 2, {}),
        group(u"sample-private"_s, screen, u"Private"_s, u"#27ae60"_s, topLevel, 2, {}),
        group(u"sample-archive"_s, screen, u"Archive (old) <2024>"_s, u"#7f8c8d"_s, topLevel, 9,
              u"Has no tasks.\nIts name holds brackets and markup."_s),
        group(u"sample-audio-work"_s, audio, u"Work"_s, u"#2980b9"_s, topLevel, 1,
              u"Has the same name as a group of the screen recorder"_s),
        group(u"sample-radio"_s, audio, u"Radio"_s, u"#c0392b"_s, topLevel, 2, {}),
        group(u"sample-podcasts"_s, audio, u"بودكاست"_s, u"#16a085"_s, u"sample-radio"_s, 0, {}),
        group(u"sample-checks"_s, test, u"Checks"_s, u"#f39c12"_s, topLevel, 0, {}),
    };
}

} // namespace Scheduler::DevDaemon
