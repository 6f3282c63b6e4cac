#pragma once

#include <QColor>
#include <QLabel>

#include "Theme.h"

namespace zephyrix {

/// A text in one of the theme's styles, with tabular figures. What does not fit is first made
/// smaller (down to the least scale), then elided; the whole text stays readable in the tooltip and
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

    /// As painted in the view's present size, line by line.
    [[nodiscard]] QStringList displayedLines() const;
    [[nodiscard]] bool isTruncated() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    [[nodiscard]] QFont styledFont() const;
    [[nodiscard]] QFont fittedFont() const;
    [[nodiscard]] QStringList linesIn(const QFont& font) const;
    [[nodiscard]] double firstBaseline(const QFont& font, qsizetype lineCount) const;

    Theme::TextStyle style_ = Theme::TextStyle::Words;
    QString styleName_;
    int baseline_ = -1;
    double minimumScale_ = 1.0;
    QColor givenColor_;
    QFont givenFont_;
    bool hasGivenFont_ = false;
    QColor backgroundColor_ = Qt::transparent;
};

}  // namespace zephyrix
