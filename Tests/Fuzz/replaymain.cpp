// Gives every file of a folder to the harness linked with this, in the order of names.
#include "fuzzinput.h"

#include <QDir>

int main(int argumentCount, char **arguments)
{
    const QDir corpus(argumentCount == 2 ? QString::fromLocal8Bit(arguments[1]) : QString());
    const QStringList names = corpus.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(corpus.filePath(name));
        require(file.open(QIODevice::ReadOnly), "the file can be read:", name);
        const QByteArray bytes = file.readAll();
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                               static_cast<std::size_t>(bytes.size()));
    }
    require(!names.isEmpty(), "the folder holds files:", corpus.path());
    return 0;
}
