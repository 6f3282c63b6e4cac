#pragma once

#include <functional>

#include <QByteArray>
#include <QLayout>
#include <QString>
#include <QVariant>
#include <QWidget>
#include <QXmlStreamReader>

namespace zephyrix {

/// Makes views from an interface description: that part of Qt Designer's .ui format which the
/// layouts use. Widgets with properties, box and grid layouts, spacers; what only an editor needs
/// is passed over. The toolkit's own reader knows all of the format, but takes part in every start
/// with two graphics libraries and several milliseconds.
///
/// What is no XML gives no view. A mistake in what the description says (an unknown property, a
/// value that it cannot have, an unknown element) stops the process with a line that names it.
class LayoutReader {
  public:
    /// A widget of a class by its plain name, or null where that is not known.
    using MakeWidget = std::function<QWidget*(const QString& className, QWidget* parent)>;

    /// One reader makes one tree of views.
    LayoutReader(QString name, const QByteArray& description, MakeWidget makeWidget);

    /// The root view, or null; then errorString() says why.
    [[nodiscard]] QWidget* read(QWidget* parent);
    [[nodiscard]] QString errorString() const;

  private:
    struct Cell;  // where in its layout an item is

    [[nodiscard]] QWidget* readWidget(QWidget* parent);
    void readProperty(QObject& object);
    [[nodiscard]] QVariant readValue();
    void readLayout(QWidget& view, QLayout& layout);
    void readLayoutProperty(QLayout& layout);
    void readItem(QWidget& view, QLayout& layout);
    [[nodiscard]] QLayout* makeLayout() const;
    [[nodiscard]] QSpacerItem* readSpacer();
    [[nodiscard]] Cell cellOfItem() const;
    [[nodiscard]] QString attribute(const char* name) const;
    [[noreturn]] void stop(const QString& mistake) const;
    [[noreturn]] void stopAtElement() const;

    QString name_;
    QXmlStreamReader xml_;
    MakeWidget makeWidget_;
};

}  // namespace zephyrix
