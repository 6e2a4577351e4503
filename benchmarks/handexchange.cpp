#include "handexchange.h"

#include "wireprotocol.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace Bench {

HandExchange::HandExchange()
{
    m_socket.connectToServer(Scheduler::defaultPipeName());
    if (!m_socket.waitForConnected(5000)) {
        std::fputs("cannot connect to the canned daemon\n", stderr);
        std::exit(1);
    }
}

QByteArray HandExchange::fetch(const QString &cmd, const QJsonObject &payload)
{
    const QJsonObject request{{u"id"_s, QString::number(++m_counter)}, {u"cmd"_s, cmd}, {u"payload"_s, payload}};
    QByteArray frame = QJsonDocument(request).toJson(QJsonDocument::Compact);
    frame.append('\n');
    m_socket.write(frame);
    m_socket.flush();

    QByteArray answer;
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    QObject::connect(&m_socket, &QLocalSocket::readyRead, &loop, [&] {
        answer.append(m_socket.readAll());
        if (answer.endsWith('\n'))
            loop.quit();
    });
    timer.start(60000);
    loop.exec();
    return answer;
}

QJsonObject HandExchange::ask(const QString &cmd, const QJsonObject &payload)
{
    return QJsonDocument::fromJson(fetch(cmd, payload)).object();
}

} // namespace Bench
