#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace TestSupport {

/// A service tool of the test's own, the first that is found while this object lives. It prints what the test says, and
/// keeps a list of its calls.
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
    /// False where the system's own tool is found without a search path, so that there always is one.
    static const bool canBeMissing;

    /// "show" for each query and "start" for each start, in order.
    [[nodiscard]] QStringList calls() const;

    // What the tool of this system prints about a service that is running, installed and no more, or neither; that has
    // begun to start, or tried to and failed.
    static const QByteArray running;
    static const QByteArray stopped;
    static const QByteArray missing;
    static const QByteArray starting;
    static const QByteArray failed;

private:
    void write() const;

    QTemporaryDir m_directory;
    QByteArray m_previousPath; ///< the search path, or on Windows the current directory, of before
    QByteArray m_queryOutput = missing;
    QByteArray m_startCommand; ///< in the words of the tool
};

} // namespace TestSupport
