#include "Description.h"

#include <QDateTime>
#include <QMetaType>
#include <QStringList>

#include "Instant.h"
#include "Number.h"

namespace zephyrix {

namespace {

QString describe(const QVariantList& list) {
    QStringList parts;
    for (const QVariant& element : list)
        parts << description(element);
    return QStringLiteral("(%1)").arg(parts.join(QLatin1String(", ")));
}

QString describe(const QVariantMap& dictionary) {
    QStringList parts;
    for (auto entry = dictionary.cbegin(); entry != dictionary.cend(); ++entry)
        parts << entry.key() + QLatin1String(" = ") + description(entry.value());
    return QStringLiteral("{%1}").arg(parts.join(QLatin1String("; ")));
}

}  // namespace

QString description(const QVariant& value) {
    if (const auto number = Number::fromVariant(value))
        return number->text();
    switch (value.typeId()) {
        case QMetaType::UnknownType:
            return QStringLiteral("nil");
        case QMetaType::Nullptr:
            return QStringLiteral("<null>");
        case QMetaType::QVariantList:
            return describe(value.toList());
        case QMetaType::QVariantMap:
            return describe(value.toMap());
        case QMetaType::QDateTime:
            return Instant::fromDateTime(value.toDateTime()).description();
        case QMetaType::QByteArray:
            return QStringLiteral("<%1>").arg(QLatin1String(value.toByteArray().toHex()));
        default:
            break;
    }
    if (value.typeId() == qMetaTypeId<Instant>())
        return value.value<Instant>().description();
    return value.toString();
}

}  // namespace zephyrix
