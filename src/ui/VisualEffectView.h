#pragma once

#include "View.h"

namespace zephyrix {

/// Lets its content stand out from the panel's surface. On the light surface it lays a soft shade
/// below the content, because a white content would not be seen there; on the dark one nothing.
class VisualEffectView : public View {
    Q_OBJECT

  public:
    explicit VisualEffectView(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace zephyrix
