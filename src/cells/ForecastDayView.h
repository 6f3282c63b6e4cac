#pragma once

#include <QLayout>
#include <QPointer>

#include "ui/ImageView.h"
#include "ui/Label.h"
#include "ui/Nib.h"
#include "ui/View.h"

namespace zephyrix {

/// One day's column of the forecast strip, made from the layout "ForecastDayView".
class ForecastDayView : public View, public NibObject {
    Q_OBJECT

  public:
    explicit ForecastDayView(QWidget* parent = nullptr);

    [[nodiscard]] Label* dayLabel() const { return dayLabel_; }
    [[nodiscard]] ImageView* symbol() const { return symbol_; }
    [[nodiscard]] Label* tx() const { return tx_; }  // highest temperature
    [[nodiscard]] Label* tn() const { return tn_; }  // lowest temperature
    /// The line at the column's trailing edge.
    [[nodiscard]] QWidget* separator() const { return separator_; }
    void connectOutlets() override;

    /// The part of their usual size at which both temperatures have room beside each other; 1 where
    /// they need not be smaller. While they have their usual size.
    [[nodiscard]] double fittingTemperatureScale() const;
    /// Part of the temperatures' usual size; 1 until told otherwise.
    void setTemperatureScale(double scale);

    /// A yellow ground to see a column by while working on a layout; clear without.
    virtual void setHighlighted(bool highlighted);

    /// Tells the column from the other views of its container.
    [[nodiscard]] int tag() const noexcept { return tag_; }
    void setTag(int tag) noexcept { tag_ = tag; }

  private:
    QPointer<Label> dayLabel_;
    QPointer<ImageView> symbol_;
    QPointer<Label> tx_;
    QPointer<Label> tn_;
    QPointer<QWidget> separator_;
    QPointer<QLayout> temperatures_;
    double temperatureScale_ = 1.0;
    int tag_ = 0;
};

}  // namespace zephyrix
