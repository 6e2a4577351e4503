#include "canneddaemon.h"

#include "mcsframebuffer.h"
#include "wireprotocol.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>

#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

/// One client of the canned daemon.
class Conversation {
public:
    Conversation(QLocalSocket *socket, const Answers &answers)
        : m_socket(socket)
        , m_answers(answers)
    {
        QObject::connect(socket, &QLocalSocket::readyRead, socket, [this] { serve(); });
    }

private:
    void serve()
    {
        m_buffer.readFrom(*m_socket);
        while (const std::optional<QByteArray> frame = m_buffer.takeFrame()) {
            const QJsonObject request = QJsonDocument::fromJson(*frame).object();
            const QString cmd = request.value("cmd"_L1).toString();
            m_socket->write(responseFrame(request.value("id"_L1).toString(), nextData(cmd)) + '\n');
        }
        m_socket->flush();
    }

    QByteArray nextData(const QString &cmd)
    {
        const QList<QByteArray> data = m_answers.value(cmd);
        return data.isEmpty() ? QByteArray() : data.at(m_turns[cmd]++ % data.size());
    }

    QLocalSocket *m_socket;
    const Answers &m_answers;
    QHash<QString, qsizetype> m_turns;
    Scheduler::MCsFrameBuffer m_buffer;
};

} // namespace

int runCannedDaemon(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const Answers answers = cannedAnswers(Amounts::fromArguments(QCoreApplication::arguments().sliced(2)));
    std::vector<std::unique_ptr<Conversation>> conversations;
    QLocalServer server;
    QLocalServer::removeServer(Scheduler::defaultPipeName());
    if (!server.listen(Scheduler::defaultPipeName()))
        return 1;
    QObject::connect(&server, &QLocalServer::newConnection, &server, [&] {
        conversations.push_back(std::make_unique<Conversation>(server.nextPendingConnection(), answers));
    });
    std::puts("listening");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

DaemonProcess::DaemonProcess(const Amounts &amounts)
{
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtimeDirectory.path()));
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QCoreApplication::applicationFilePath(), QStringList{u"--daemon"_s} + amounts.toArguments());
    if (!m_process.waitForReadyRead(60000)) {
        std::fputs("the canned daemon did not start\n", stderr);
        std::exit(1);
    }
}

DaemonProcess::~DaemonProcess()
{
    m_process.kill();
    m_process.waitForFinished();
}

} // namespace Bench
