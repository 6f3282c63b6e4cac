#pragma once

#include <QColor>
#include <QWidget>

namespace zephyrix {

/// A plain view: a rectangle that is filled with its background colour and holds other views.
class View : public QWidget {
    Q_OBJECT

  public:
    explicit View(QWidget* parent = nullptr);

    [[nodiscard]] const QColor& backgroundColor() const noexcept { return backgroundColor_; }
    /// An invalid or fully transparent colour is "clear" and paints nothing.
    virtual void setBackgroundColor(const QColor& color);
    /// How a view directly inside this one shows its background colour.
    [[nodiscard]] virtual QColor blended(const QColor& content) const { return content; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QColor backgroundColor_ = Qt::transparent;
};

/// Brings the views that layouts arrange inside a view into their places now. A view that was not
/// shown yet gets no resize events, so its layout must be told its place.
void activateLayouts(QWidget* view);

}  // namespace zephyrix
