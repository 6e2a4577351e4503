#include "fuzzing.h"

#include <QDirIterator>

/// Plays inputs once each, without the engine: the arguments are files, or folders of them. A target that finds
/// something wrong ends the process.
int main(int argc, char **argv)
{
    int played = 0;
    for (int i = 1; i < argc; ++i) {
        QStringList paths{QFile::decodeName(argv[i])};
        if (QFileInfo(paths.constFirst()).isDir()) {
            QDirIterator files(paths.takeFirst(), QDir::Files);
            while (files.hasNext())
                paths.append(files.next());
        }
        for (const QString &path : std::as_const(paths)) {
            std::fprintf(stderr, "%s\n", qPrintable(path));
            QFile file(path);
            Fuzzing::require(file.open(QIODevice::ReadOnly), "the input can be read");
            const QByteArray input = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.constData()),
                                   static_cast<size_t>(input.size()));
            ++played;
        }
    }
    std::fprintf(stderr, "%d inputs\n", played);
    return played > 0 ? 0 : 1;
}
