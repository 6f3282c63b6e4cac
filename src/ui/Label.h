#pragma once

#include <QColor>
#include <QLabel>

#include "TextLine.h"
#include "Theme.h"

namespace zephyrix {

/// A text in one of the theme's styles, with tabular figures; a line break in it begins a new line,
/// and with word wrap so does the view's edge. What does not fit is first made smaller (down to the
/// least scale, without word wrap), then elided; the whole text stays readable in the tooltip and
/// for screen readers.
class Label : public QLabel {
    Q_OBJECT
    /// The name of a Theme::TextStyle.
    Q_PROPERTY(QString textStyle READ textStyleName WRITE setTextStyleName)
    /// Points from the view's bottom edge up to the baseline; negative: the line is placed by the
    /// alignment. Labels of different sizes in one row share a baseline by sharing this.
    Q_PROPERTY(int baseline READ baseline WRITE setBaseline)
    /// The least size that the text may shrink to, as a share of the style's; 1: no shrinking.
    Q_PROPERTY(double minimumScale READ minimumScale WRITE setMinimumScale)

  public:
    explicit Label(QWidget* parent = nullptr);

    void setTextStyle(Theme::TextStyle style);
    [[nodiscard]] QString textStyleName() const { return styleName_; }
    void setTextStyleName(const QString& name);
    [[nodiscard]] int baseline() const noexcept { return baseline_; }
    void setBaseline(int points);
    [[nodiscard]] double minimumScale() const noexcept { return minimumScale_; }
    void setMinimumScale(double scale);
    /// Instead of the style's colour and font.
    void setTextColor(const QColor& color);
    void setTextFont(const QFont& font);
    [[nodiscard]] QColor textColor() const;
    void setBackgroundColor(const QColor& color);

    /// A place between whole points is remembered and filled as well as whole points can.
    void setExactFrame(const QRectF& frame);
    [[nodiscard]] const QRectF& exactFrame() const noexcept { return exactFrame_; }

    /// As painted in the view's present size, line by line.
    [[nodiscard]] QStringList displayedLines() const;
    [[nodiscard]] bool isTruncated() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return wordWrap(); }
    /// What the wrapped text needs at this width, in points.
    [[nodiscard]] int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    [[nodiscard]] QFont styledFont() const;
    [[nodiscard]] TextLine::Figures figures() const;
    [[nodiscard]] SharedFont fittedFont(double width) const;
    [[nodiscard]] QStringList linesIn(const SharedFont& font) const;
    [[nodiscard]] double firstBaseline(const SharedFont& font, qsizetype lineCount) const;

    Theme::TextStyle style_ = Theme::TextStyle::Words;
    QString styleName_;
    int baseline_ = -1;
    double minimumScale_ = 1.0;
    QColor givenColor_;
    QFont givenFont_;
    bool hasGivenFont_ = false;
    QColor backgroundColor_ = Qt::transparent;
    QRectF exactFrame_;
};

}  // namespace zephyrix
