#include "XmlTree.h"

#include <algorithm>
#include <expat.h>
#include <memory>

namespace zephyrix {

namespace {

/// Puts the tree together while the parser goes through the document.
class Builder {
  public:
    static void started(void* builder, const XML_Char* name, const XML_Char** attributes) {
        XmlElement element{name, {}, {}, {}};
        for (; *attributes != nullptr; attributes += 2)
            element.attributes.emplace_back(attributes[0], QString::fromUtf8(attributes[1]));
        static_cast<Builder*>(builder)->open_.push_back(std::move(element));
    }

    static void ended(void* builder, const XML_Char* /*name*/) {
        auto& open = static_cast<Builder*>(builder)->open_;
        if (open.size() == 1)
            return;  // the outermost one
        XmlElement element = std::move(open.back());
        open.pop_back();
        open.back().children.push_back(std::move(element));
    }

    static void said(void* builder, const XML_Char* text, int length) {
        QString& all = static_cast<Builder*>(builder)->open_.back().text;
        if (all.isEmpty() && QByteArrayView(text, length).trimmed().isEmpty())
            return;  // between elements
        all += QString::fromUtf8(text, length);
    }

    [[nodiscard]] XmlElement takeRoot() { return std::move(open_.front()); }

  private:
    std::vector<XmlElement> open_;  // those whose end was not seen yet, the outermost first
};

}  // namespace

QString XmlElement::attribute(QByteArrayView attributeName) const {
    const auto found = std::ranges::find_if(
        attributes, [&](const auto& each) { return each.first == attributeName; });
    return found == attributes.end() ? QString() : found->second;
}

std::optional<XmlElement> readXml(const QByteArray& document, QString& problem) {
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate("UTF-8"), XML_ParserFree);
    Builder builder;
    XML_SetUserData(parser.get(), &builder);
    XML_SetElementHandler(parser.get(), Builder::started, Builder::ended);
    XML_SetCharacterDataHandler(parser.get(), Builder::said);
    if (XML_Parse(parser.get(), document.constData(), static_cast<int>(document.size()), 1) ==
        XML_STATUS_OK)
        return builder.takeRoot();
    problem = QStringLiteral("line %1: %2")
                  .arg(XML_GetCurrentLineNumber(parser.get()))
                  .arg(QLatin1String(XML_ErrorString(XML_GetErrorCode(parser.get()))));
    return std::nullopt;
}

}  // namespace zephyrix
