#pragma once

#include "View.h"

namespace zephyrix {

/// Lets its content stand out from the panel's surface while the texts above it stay readable: on
/// the dark surface the content is weakened, on the light one, where a white content would not be
/// seen, a soft shade lies below it.
class VisualEffectView : public View {
    Q_OBJECT

  public:
    explicit VisualEffectView(QWidget* parent = nullptr);

    [[nodiscard]] QColor blended(const QColor& content) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace zephyrix
