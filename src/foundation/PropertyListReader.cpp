#include <array>
#include <charconv>

#include <QDateTime>
#include <QXmlStreamReader>

#include "PropertyList.h"

namespace zephyrix {

namespace {

QVariant realOf(const QString& text) {
    const QByteArray digits = text.toLatin1();
    const char* first = digits.constData();
    const char* const last = first + digits.size();
    if (first != last && *first == '+')
        ++first;
    double value = 0.0;
    const auto [end, error] = std::from_chars(first, last, value);
    return error == std::errc() && end == last ? QVariant(value) : QVariant();
}

QVariant integerOf(const QString& text) {
    const bool hexadecimal = text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    const int base = hexadecimal ? 16 : 10;
    bool fits = false;
    const qlonglong value = text.toLongLong(&fits, base);
    if (fits)
        return value;
    const qulonglong wide = text.toULongLong(&fits, base);
    return fits ? QVariant(wide) : QVariant();
}

/// "2015-06-01T10:00:00Z" and no other form.
QVariant dateOf(const QString& text) {
    const QDate day = QDate::fromString(text.left(10), QStringLiteral("yyyy-MM-dd"));
    const QTime time = QTime::fromString(text.mid(10), QStringLiteral("'T'HH:mm:ss'Z'"));
    return day.isValid() && time.isValid() ? QVariant(QDateTime(day, time, Qt::UTC)) : QVariant();
}

QVariant dataOf(const QString& text) {
    QByteArray encoded = text.toLatin1();
    encoded.replace('\n', "").replace('\r', "").replace('\t', "").replace(' ', "");
    const auto result =
        QByteArray::fromBase64Encoding(encoded, QByteArray::AbortOnBase64DecodingErrors);
    return result ? QVariant(*result) : QVariant();
}

struct Scalar {
    const char* element;
    QVariant (*parse)(const QString& text);  // of text without outer blanks; invalid when malformed
};

constexpr std::array<Scalar, 4> scalars{{
    {"integer", integerOf},
    {"real", realOf},
    {"date", dateOf},
    {"data", dataOf},
}};

/// Walks one document. The XML reader's error state is the one record of failure: once it is set,
/// nothing further is read.
class Reader {
  public:
    explicit Reader(const QByteArray& bytes) : xml_(bytes) {}

    std::optional<QVariantMap> document() {
        QVariant root;
        if (atPropertyList()) {
            root = onlyValue();
            while (!xml_.atEnd())
                xml_.readNext();
        }
        if (!xml_.hasError() && root.typeId() != QMetaType::QVariantMap)
            xml_.raiseError(QStringLiteral("its outermost value is no dictionary"));
        if (xml_.hasError())
            return std::nullopt;
        return root.toMap();
    }

    [[nodiscard]] QString problem() const {
        return QStringLiteral("line %1: %2").arg(xml_.lineNumber()).arg(xml_.errorString());
    }

  private:
    /// Goes to the first element, which must be "plist". Entity declarations are refused as such:
    /// no writer of property lists makes them, and a few lines of them expand without bound.
    bool atPropertyList() {
        while (!xml_.atEnd() && !xml_.isStartElement()) {
            xml_.readNext();
            if (xml_.isDTD() && xml_.text().contains(QLatin1Char('[')))
                xml_.raiseError(QStringLiteral("declarations inside the document type"));
        }
        if (!xml_.hasError() && xml_.name() != QLatin1String("plist"))
            xml_.raiseError(QStringLiteral("no property list"));
        return !xml_.hasError();
    }

    QVariant onlyValue() {
        if (!xml_.readNextStartElement()) {
            xml_.raiseError(QStringLiteral("no value"));
            return {};
        }
        QVariant value = this->value(1);
        if (!xml_.hasError() && xml_.readNextStartElement())
            xml_.raiseError(QStringLiteral("more than one value"));
        return value;
    }

    /// The value whose start element was just read, up to and with its end element.
    QVariant value(int depth) {
        const QString element = xml_.name().toString();
        if (element == QLatin1String("dict") || element == QLatin1String("array")) {
            if (depth > PropertyList::mostDepth) {
                xml_.raiseError(QStringLiteral("nested too deeply"));
                return {};
            }
            return element == QLatin1String("dict") ? dictionary(depth) : array(depth);
        }
        return scalar(element);
    }

    QVariant scalar(const QString& element) {
        const QString text = this->text();
        if (element == QLatin1String("string"))
            return text;
        if (element == QLatin1String("true") || element == QLatin1String("false"))
            return element == QLatin1String("true");
        for (const Scalar& kind : scalars) {
            if (element != QLatin1String(kind.element))
                continue;
            QVariant value = kind.parse(text.trimmed());
            if (!value.isValid() && !xml_.hasError())
                xml_.raiseError(QStringLiteral("malformed <%1>").arg(element));
            return value;
        }
        xml_.raiseError(QStringLiteral("unknown element <%1>").arg(element));
        return {};
    }

    QVariant dictionary(int depth) {
        QVariantMap entries;
        while (xml_.readNextStartElement()) {
            if (xml_.name() != QLatin1String("key")) {
                xml_.raiseError(QStringLiteral("a value without a key"));
                break;
            }
            const QString key = text();
            if (!xml_.hasError() && !xml_.readNextStartElement())
                xml_.raiseError(QStringLiteral("a key without a value"));
            if (xml_.hasError())
                break;
            entries.insert(key, value(depth + 1));
        }
        return entries;
    }

    QVariant array(int depth) {
        QVariantList entries;
        while (xml_.readNextStartElement())
            entries.append(value(depth + 1));
        return entries;
    }

    /// The text up to the end element; an element or an unknown entity inside it is an error.
    QString text() {
        QString text;
        while (!xml_.atEnd() && xml_.readNext() != QXmlStreamReader::EndElement) {
            if (xml_.isCharacters())
                text += xml_.text();
            else if (xml_.isStartElement() || xml_.isEntityReference())
                xml_.raiseError(QStringLiteral("unexpected markup inside a text"));
        }
        return text;
    }

    QXmlStreamReader xml_;
};

}  // namespace

std::optional<QVariantMap> PropertyList::read(const QByteArray& bytes, QString* problem) {
    if (bytes.size() > mostBytes) {
        if (problem)
            *problem = QStringLiteral("larger than %1 bytes").arg(mostBytes);
        return std::nullopt;
    }
    Reader reader(bytes);
    auto values = reader.document();
    if (!values && problem)
        *problem = reader.problem();
    return values;
}

}  // namespace zephyrix
