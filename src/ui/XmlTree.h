#pragma once

#include <optional>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QString>

namespace zephyrix {

/// An element of an XML document with all that is inside it.
struct XmlElement {
    QByteArray name;
    std::vector<std::pair<QByteArray, QString>> attributes;
    QString text;  // without blank lines before it; empty when it is blank
    std::vector<XmlElement> children;

    [[nodiscard]] bool is(QByteArrayView otherName) const { return name == otherName; }
    /// Empty where there is none.
    [[nodiscard]] QString attribute(QByteArrayView attributeName) const;
};

/// The outermost element of a document; nothing, and a phrase in `problem`, for what is no XML. For
/// documents that are our own.
[[nodiscard]] std::optional<XmlElement> readXml(const QByteArray& document, QString& problem);

}  // namespace zephyrix
