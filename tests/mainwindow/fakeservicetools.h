#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace TestSupport {

/// A service tool of the test's own, the only program on the search path while this object lives. It prints what the
/// test says, and keeps a list of its calls.
class FakeServiceTools {
public:
    /// The service is neither installed nor running, and its start fails.
    FakeServiceTools();
    ~FakeServiceTools();
    FakeServiceTools(const FakeServiceTools &) = delete;
    FakeServiceTools &operator=(const FakeServiceTools &) = delete;

    void setQueryOutput(const QByteArray &output);
    void setStartExitCode(int code);
    /// The start does not come to an end by itself.
    void setStartHangs();
    /// There is no such tool.
    void uninstall();

    /// "show" for each query and "start" for each start, in order.
    [[nodiscard]] QStringList calls() const;

    static inline const QByteArray running = "LoadState=loaded\nActiveState=active";
    static inline const QByteArray stopped = "LoadState=loaded\nActiveState=inactive";
    static inline const QByteArray missing = "LoadState=not-found\nActiveState=inactive";

private:
    void write() const;

    QTemporaryDir m_directory;
    QByteArray m_previousPath;
    QByteArray m_queryOutput = missing;
    QByteArray m_startCommand = "exit 1";
};

} // namespace TestSupport
