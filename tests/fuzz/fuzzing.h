#pragma once

#include "isolation.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtGlobal>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

// What the fuzz targets share. A target is one file: LLVMFuzzerTestOneInput() takes an input, does with it what the
// program does with bytes from outside, and calls require() for everything that must hold whatever the bytes are.

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace Fuzzing {

/// Ends the process with a message unless the condition holds, in every build type; the engine keeps the input.
inline void require(bool condition, const char *what)
{
    if (condition)
        return;
    std::fprintf(stderr, "This must hold, and does not: %s\n", what);
    std::abort();
}

/// The input as a byte array of its own, so that the address sanitizer sees a read beyond its end.
inline QByteArray bytesOf(const uint8_t *data, size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)};
}

/// The bytes as a JSON object; an empty one when they are none.
inline QJsonObject objectFrom(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

/// Directories of its own for the process, and nothing of what the program logs or warns of on the terminal, which
/// would be most of the work.
class QuietProcess {
public:
    QuietProcess()
    {
        require(m_home.isValid(), "there is a temporary directory");
        TestSupport::isolateProcess(m_home);
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    }

private:
    QTemporaryDir m_home;
};

} // namespace Fuzzing
