#include "logfixture.h"

using namespace Qt::StringLiterals;

namespace TestSupport {

const QString LogWindow::time = u"2026-11-13 10:00:05"_s;

bool LogWindow::connect(const QString &taskType)
{
    daemon.respondWith(u"audit.list"_s, [this](const QJsonObject &payload) {
        const auto limit = payload.value("limit"_L1).toInteger();
        const QJsonArray logs = toArray(entries.mid(0, limit));
        return QJsonObject{{u"ok"_s, true}, {u"data"_s, QJsonObject{{u"logs"_s, logs}}}};
    });
    if (!connectWindow(taskType))
        return false;
    timer("statusUpdateTimer")->stop();
    view = widget<QTextEdit>("logView");
    daemon.clearRequests();
    return true;
}

void LogWindow::happen(const QString &action, const QString &name, const QJsonObject &more)
{
    QJsonObject entry{{u"action"_s, action}, {u"entityName"_s, name}, {u"createdAt"_s, u"2026-11-13T10:00:05Z"_s}};
    for (auto member = more.begin(); member != more.end(); ++member)
        entry.insert(member.key(), member.value());
    entries.prepend(entry);
}

void LogWindow::refresh()
{
    click(window.get(), "refreshLogButton");
}

QStringList LogWindow::lines() const
{
    return view->toPlainText().split(u'\n', Qt::SkipEmptyParts);
}

} // namespace TestSupport
