#pragma once

#include <QProxyStyle>

namespace zephyrix {

/// The toolkit's own style, in which boxes to check and fields can be told from a dark ground too:
/// its outlines are darker than the ground, whatever that is. For where the desktop has no style of
/// its own.
class ControlStyle : public QProxyStyle {
    Q_OBJECT

  public:
    /// Takes the application over, unless the desktop has chosen another style than the toolkit's.
    static void useWhereNoneIsChosen();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;

  private:
    ControlStyle();
};

}  // namespace zephyrix
