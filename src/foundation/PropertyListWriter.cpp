#include <array>
#include <charconv>

#include <QDateTime>

#include "Instant.h"
#include "PropertyList.h"

namespace zephyrix {

namespace {

constexpr QChar replacement(0xFFFD);

bool isPlainInXml(QChar c) {
    const char16_t unit = c.unicode();
    return unit >= 0x20 ? unit < 0xFFFE : unit == u'\t' || unit == u'\n' || unit == u'\r';
}

/// The text with each character that XML cannot carry replaced by one U+FFFD.
QString carriable(const QString& text) {
    QString result = text;
    for (qsizetype i = 0; i < result.size(); ++i) {
        const QChar c = result.at(i);
        const bool pair =
            c.isHighSurrogate() && i + 1 < result.size() && result.at(i + 1).isLowSurrogate();
        if (pair)
            ++i;
        else if (c.isSurrogate() || !isPlainInXml(c))
            result[i] = replacement;
    }
    return result;
}

QByteArray escaped(const QString& text) {
    // A bare carriage return would be read back as a line feed.
    return carriable(text).toHtmlEscaped().toUtf8().replace('\r', "&#13;");
}

QByteArray shortestText(double value) {
    std::array<char, 32> buffer{};
    auto* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return {buffer.data(), end - buffer.data()};
}

/// Whole seconds, rounded down also before 1970; empty outside the years 1 to 9999.
QByteArray dateText(const QDateTime& date) {
    const qint64 milliseconds = date.toMSecsSinceEpoch();
    const qint64 fraction = ((milliseconds % 1000) + 1000) % 1000;
    const QDateTime whole = QDateTime::fromMSecsSinceEpoch(milliseconds - fraction, Qt::UTC);
    const int year = whole.date().year();
    if (!date.isValid() || year < 1 || year > 9999)
        return {};
    return whole.toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss'Z'")).toLatin1();
}

/// Appends values to a text, one element a line, containers indented by tabs.
class Writer {
  public:
    void dictionary(const QVariantMap& entries, int depth) {
        if (entries.isEmpty())
            return line(depth, "<dict/>");
        line(depth, "<dict>");
        for (auto entry = entries.begin(); entry != entries.end() && problem_.isEmpty(); ++entry) {
            if (isNothing(entry.value()))
                continue;
            element(depth + 1, "key", escaped(entry.key()));
            value(entry.value(), depth + 1);
        }
        line(depth, "</dict>");
    }

    void line(int depth, const QByteArray& text) {
        out_ += QByteArray(depth, '\t') + text + '\n';
        if (out_.size() > PropertyList::mostBytes)
            problem_ = QStringLiteral("larger than %1 bytes").arg(PropertyList::mostBytes);
    }

    [[nodiscard]] const QByteArray& bytes() const { return out_; }
    [[nodiscard]] const QString& problem() const { return problem_; }

  private:
    static bool isNothing(const QVariant& value) {
        return !value.isValid() || value.typeId() == QMetaType::Nullptr;
    }

    void element(int depth, const QByteArray& name, const QByteArray& content) {
        line(depth, '<' + name + '>' + content + "</" + name + '>');
    }

    void value(const QVariant& value, int depth) {
        switch (value.typeId()) {
            case QMetaType::QVariantMap:
                if (mayNest(depth))
                    dictionary(value.toMap(), depth);
                return;
            case QMetaType::QVariantList:
            case QMetaType::QStringList:
                if (mayNest(depth))
                    array(value.toList(), depth);
                return;
            case QMetaType::Bool:
                return line(depth, value.toBool() ? "<true/>" : "<false/>");
            case QMetaType::QString:
                return element(depth, "string", escaped(value.toString()));
            case QMetaType::QByteArray:
                return element(depth, "data", value.toByteArray().toBase64());
            case QMetaType::Float:
            case QMetaType::Double:
                return element(depth, "real", shortestText(value.toDouble()));
            case QMetaType::QDateTime:
                return date(value.toDateTime(), depth);
            default:
                return other(value, depth);
        }
    }

    void other(const QVariant& value, int depth) {
        const int type = value.typeId();
        if (type == qMetaTypeId<Instant>())
            return date(value.value<Instant>().toDateTime(), depth);
        if (type == QMetaType::ULong || type == QMetaType::ULongLong)
            return element(depth, "integer", QByteArray::number(value.toULongLong()));
        constexpr std::array integers{QMetaType::Int,   QMetaType::UInt,   QMetaType::Short,
                                      QMetaType::Long,  QMetaType::UShort, QMetaType::LongLong,
                                      QMetaType::SChar, QMetaType::UChar};
        for (const int integer : integers)
            if (type == integer)
                return element(depth, "integer", QByteArray::number(value.toLongLong()));
        problem_ =
            QStringLiteral("no element for the type %1").arg(QString::fromLatin1(value.typeName()));
    }

    void array(const QVariantList& entries, int depth) {
        if (entries.isEmpty())
            return line(depth, "<array/>");
        line(depth, "<array>");
        for (const QVariant& entry : entries)
            if (problem_.isEmpty() && !isNothing(entry))
                value(entry, depth + 1);
        line(depth, "</array>");
    }

    void date(const QDateTime& date, int depth) {
        const QByteArray text = dateText(date);
        if (text.isEmpty())
            problem_ = QStringLiteral("a date outside the years 1 to 9999");
        element(depth, "date", text);
    }

    /// A container at this depth of lines; the outermost dictionary stands at depth 0.
    bool mayNest(int depth) {
        if (depth >= PropertyList::mostDepth)
            problem_ = QStringLiteral("nested too deeply");
        return depth < PropertyList::mostDepth;
    }

    QByteArray out_;
    QString problem_;
};

}  // namespace

std::optional<QByteArray> PropertyList::write(const QVariantMap& values, QString* problem) {
    Writer writer;
    writer.line(0, R"(<?xml version="1.0" encoding="UTF-8"?>)");
    writer.line(0, R"(<plist version="1.0">)");
    writer.dictionary(values, 0);
    writer.line(0, "</plist>");
    if (writer.problem().isEmpty())
        return writer.bytes();
    if (problem)
        *problem = writer.problem();
    return std::nullopt;
}

}  // namespace zephyrix
