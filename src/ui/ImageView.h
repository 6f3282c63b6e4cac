#pragma once

#include <QImage>
#include <QWidget>

namespace zephyrix {

/// Shows an image, fitted into the view with its proportions kept, in the view's middle; sharp at
/// any device pixel ratio. It may be turned about the view's centre.
class ImageView : public QWidget {
    Q_OBJECT
    /// An image of the bundle's catalogue ("WindLabelSquare.png"); read when it is first painted,
    /// at half its size ("half/WindLabelSquare.png") or a quarter where that has enough pixels.
    Q_PROPERTY(QString imageName READ imageName WRITE setImageName)
    /// Takes the catalogue's image for the theme's ground instead: "WindLabelSquare-light.png" or
    /// "WindLabelSquare-dark.png", and the plain one where there is none for it.
    Q_PROPERTY(bool followsScheme READ followsScheme WRITE setFollowsScheme)

  public:
    explicit ImageView(QWidget* parent = nullptr);

    [[nodiscard]] const QImage& image() const noexcept { return image_; }
    /// A null image clears the view. The catalogue's image, if there was one, is forgotten.
    virtual void setImage(const QImage& image);

    [[nodiscard]] const QString& imageName() const noexcept { return imageName_; }
    void setImageName(const QString& name);
    [[nodiscard]] bool followsScheme() const noexcept { return followsScheme_; }
    void setFollowsScheme(bool follows);

    [[nodiscard]] double rotation() const noexcept { return rotation_; }
    /// Degrees, clockwise on the screen.
    virtual void setRotation(double degrees);

    [[nodiscard]] QSizeF boundsSize() const { return {size()}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    [[nodiscard]] QString catalogueName() const;
    void forgetCatalogueImage();
    void readCatalogueImage(const QSize& pixels);
    [[nodiscard]] QImage fitted(const QSize& pixels) const;
    [[nodiscard]] QImage turned(const QImage& source) const;

    QImage image_;
    QImage ready_;  // what was painted last, in device pixels; null after a change
    QString imageName_;
    int largestNeed_ = 0;  // pixels; beyond them, another copy of the catalogue's image is read
    double rotation_ = 0.0;
    bool followsScheme_ = false;
};

}  // namespace zephyrix
