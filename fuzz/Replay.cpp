// In a build without libFuzzer: gives each file of the named folders to the target, once.
#include <cstdint>
#include <cstdio>

#include <QDir>
#include <QFile>
#include <QFileInfo>

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

/// A file, or the files of a folder by name.
QStringList inputsOf(const QString& path) {
    if (!QFileInfo(path).isDir())
        return {path};
    const QDir folder(path);
    QStringList inputs;
    for (const QString& name : folder.entryList(QDir::Files, QDir::Name))
        inputs << folder.filePath(name);
    return inputs;
}

bool replay(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s cannot be read\n", qPrintable(path));
        return false;
    }
    const QByteArray bytes = file.readAll();
    std::fprintf(stderr, "input %s\n", qPrintable(path));
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    QStringList inputs;
    for (int i = 1; i < argc; ++i)
        inputs << inputsOf(QFileInfo(QString::fromLocal8Bit(argv[i])).absoluteFilePath());
    if (inputs.isEmpty()) {
        std::fprintf(stderr, "nothing to replay\n");
        return 1;
    }
    LLVMFuzzerInitialize(&argc, &argv);
    bool allRead = true;
    for (const QString& input : inputs)
        allRead = replay(input) && allRead;
    std::printf("%d inputs replayed\n", static_cast<int>(inputs.size()));
    return allRead ? 0 : 1;
}
