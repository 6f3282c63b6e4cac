#include "Bundle.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace zephyrix {

namespace {

QString existing(const QString& path) {
    return QFileInfo::exists(path) ? path : QString();
}

}  // namespace

Bundle& Bundle::main() {
    static Bundle bundle;
    return bundle;
}

QString Bundle::pathForResource(const QString& name) const {
    const QString directory = dataDirectory_.isEmpty() ? QCoreApplication::applicationDirPath() +
                                                             QStringLiteral("/../share/zephyrix")
                                                       : dataDirectory_;
    return existing(directory + QLatin1Char('/') + name);
}

void Bundle::setDataDirectory(const QString& directory) {
    dataDirectory_ = directory;
}

QString Bundle::pathForImage(const QString& name) const {
    const QString path = QStringLiteral(":/zephyrix/images/") + name;
    return path.endsWith(QLatin1String(".png")) ? existing(path)
                                                : existing(path + QStringLiteral(".png"));
}

std::optional<QByteArray> Bundle::layout(const QString& name) const {
    QFile file(QStringLiteral(":/zephyrix/layouts/%1.ui").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

QString Bundle::localizedString(const QString& key) const {
    return key;
}

QStringList Bundle::preferredLocalizations() const {
    return {QStringLiteral("en")};
}

}  // namespace zephyrix
