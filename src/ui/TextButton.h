#pragma once

#include <QAbstractButton>

namespace zephyrix {

/// A button that is nothing but a quiet text in the middle of its area. Works by mouse, Space and
/// Return; shows a ring when it has the keyboard's focus.
class TextButton : public QAbstractButton {
    Q_OBJECT

  public:
    explicit TextButton(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    bool showsFocus_ = false;  // by keyboard only: a click shows what it did already
};

}  // namespace zephyrix
