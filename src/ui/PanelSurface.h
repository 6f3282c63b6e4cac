#pragma once

#include <QMargins>
#include <QWidget>

namespace zephyrix {

/// The panel's ground: a rounded, translucent surface with a soft shadow around it, as high as its
/// content. The host makes it the window (frameless, WA_TranslucentBackground) and gives it the
/// table as content.
///
/// The content lies inside shadowMargins(). Without a compositor the host turns the shadow off:
/// then there are no margins, the surface is opaque, and the host masks the corners with
/// maskRegion().
class PanelSurface : public QWidget {
    Q_OBJECT

  public:
    explicit PanelSurface(QWidget* parent = nullptr);

    /// Takes the view over and keeps it as wide as the surface.
    void setContent(QWidget* content);
    /// The surface is painted this high, in points; a lower window shows less of it.
    void setSurfaceHeight(double height);
    [[nodiscard]] double surfaceHeight() const noexcept { return surfaceHeight_; }

    void setComposited(bool composited);
    [[nodiscard]] QMargins shadowMargins() const;
    [[nodiscard]] QRegion maskRegion() const;

    /// Paints shadow and surface around `area`, for pictures that show the panel on a ground of
    /// their own.
    static void paintSurface(QPainter& painter, const QRectF& area, bool composited);

    /// Fills a view with a colour, but nothing outside of the surface's rounded corners when the
    /// view lies on one.
    static void fill(QPainter& painter, const QWidget& view, const QColor& color);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    [[nodiscard]] QRectF surfaceArea() const;
    void placeContent();

    QWidget* content_ = nullptr;
    double surfaceHeight_ = 0.0;
    bool composited_ = true;
};

}  // namespace zephyrix
