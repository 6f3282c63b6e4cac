#pragma once

#include <functional>

#include <QLayout>
#include <QString>
#include <QVariant>
#include <QWidget>

#include "XmlTree.h"

namespace zephyrix {

/// Makes views from an interface description: that part of Qt Designer's .ui format which the
/// layouts use. Widgets with properties, box and grid layouts, spacers; what only an editor needs
/// is passed over. The toolkit's own reader knows all of the format, but takes part in every start
/// with two graphics libraries and several milliseconds.
///
/// A mistake in what the description says (an unknown property, a value that it cannot have, an
/// unknown element) stops the process with a line that names it.
class LayoutReader {
  public:
    /// A widget of a class by its plain name, or null where that is not known.
    using MakeWidget = std::function<QWidget*(const QString& className, QWidget* parent)>;

    LayoutReader(QString name, const MakeWidget& makeWidget);

    /// The view that a "ui" element describes, or null when it describes none.
    [[nodiscard]] QWidget* makeRoot(const XmlElement& description, QWidget* parent) const;

  private:
    [[nodiscard]] QWidget* makeView(const XmlElement& element, QWidget* parent) const;
    void setProperty(QObject& object, const XmlElement& property) const;
    [[nodiscard]] QVariant valueIn(const XmlElement& property) const;
    [[nodiscard]] QLayout* makeLayout(const XmlElement& element) const;
    void fillLayout(const XmlElement& element, QWidget& view, QLayout& layout) const;
    void setLayoutProperty(QLayout& layout, const XmlElement& property) const;
    void addItem(const XmlElement& item, QWidget& view, QLayout& layout) const;
    [[nodiscard]] QSpacerItem* makeSpacer(const XmlElement& element) const;
    [[noreturn]] void stop(const QString& mistake) const;
    [[noreturn]] void stopAt(const XmlElement& element) const;

    QString name_;
    MakeWidget makeWidget_;
};

}  // namespace zephyrix
