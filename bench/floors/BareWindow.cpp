// The least that a program with Qt Widgets can show: a window with one label. What the panel takes
// is told as multiples of this.
#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

#include "host/PaintTime.h"

int main(int argc, char** argv) {
    zephyrix::PaintTime::noteStart(argv);
    const QApplication application(argc, argv);
    zephyrix::PaintTime paintTime;
    QWidget window;
    QVBoxLayout layout(&window);
    QLabel label(QStringLiteral("Berlin: 8 degrees, rain"));
    layout.addWidget(&label);
    window.resize(440, 170);  // the panel's size, collapsed
    window.show();
    return QApplication::exec();
}
