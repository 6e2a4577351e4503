#include "windowfixture.h"

#include "resources.h"

#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

QJsonObject with(QJsonObject object, const QJsonObject &more)
{
    for (auto member = more.begin(); member != more.end(); ++member)
        object.insert(member.key(), member.value());
    return object;
}

} // namespace

QJsonObject taskJson(const QString &id, const QString &name, const QJsonObject &more)
{
    return with({{u"id"_s, id}, {u"name"_s, name}, {u"type"_s, u"task_type.screen_record"_s}, {u"enabled"_s, true}},
                more);
}

QJsonObject groupJson(const QString &id, const QString &name, const QJsonObject &more)
{
    return with({{u"id"_s, id}, {u"name"_s, name}}, more);
}

QJsonArray toArray(const QList<QJsonObject> &objects)
{
    QJsonArray array;
    for (const QJsonObject &object : objects)
        array.append(object);
    return array;
}

WindowFixture::WindowFixture()
{
    Scheduler::registerResources();
    QCoreApplication::setApplicationName(u"Orvel Task Scheduler"_s);
}

WindowFixture::~WindowFixture()
{
    close();
}

void WindowFixture::open(const QString &taskType, const QString &language)
{
    make(taskType, language);
    window->show();
}

void WindowFixture::make(const QString &taskType, const QString &language)
{
    window = std::make_unique<Scheduler::MCsMainWindow>(language, taskType, u"Foo"_s, u"/opt/foo"_s, QString());
}

bool WindowFixture::startDaemon()
{
    setTasks({taskJson(u"t1"_s, u"One"_s), taskJson(u"t2"_s, u"Two"_s)});
    setGroups({groupJson(u"g1"_s, u"Work"_s)});
    return daemon.listen();
}

bool WindowFixture::connectWindow(const QString &taskType, const QString &language)
{
    if (!startDaemon())
        return false;
    open(taskType, language);
    const auto settled = [this] {
        // The question after an empty list is the last thing that a first connection brings.
        return window->connectionState() == Scheduler::ConnectionState::Connected &&
               daemon.commands().contains(u"task.countByType"_s);
    };
    return QTest::qWaitFor(settled, 15000); // UNAVOIDABLE: waits for a condition
}

void WindowFixture::close()
{
    window.reset();
}

void WindowFixture::setTasks(const QList<QJsonObject> &tasks)
{
    const QJsonObject data{{u"tasks"_s, toArray(tasks)}};
    daemon.answer(u"task.listByType"_s, data);
    daemon.answer(u"task.listByGroupAndType"_s, data);
    daemon.answer(u"task.countByType"_s, {{u"count"_s, tasks.size()}});
}

void WindowFixture::setGroups(const QList<QJsonObject> &groups)
{
    daemon.answer(u"group.listByTaskType"_s, {{u"groups"_s, toArray(groups)}});
}

QTimer *WindowFixture::timer(const char *name) const
{
    return window->findChild<QTimer *>(QString::fromLatin1(name));
}

void WindowFixture::fire(QTimer *timer)
{
    if (timer == nullptr || !timer->isActive())
        QTest::qFail("the timer to fire does not run", __FILE__, __LINE__);
    else if (timer->isSingleShot())
        timer->start(0);
    else
        QMetaObject::invokeMethod(timer, "timeout", Qt::QueuedConnection);
}

QString WindowFixture::status() const
{
    return widget<QLabel>("statusLabel")->text();
}

int runUntilQuit(int timeoutMs)
{
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, qApp, [] { QCoreApplication::exit(-1); });
    limit.start(timeoutMs);
    return QApplication::exec();
}

} // namespace TestSupport
