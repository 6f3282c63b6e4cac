#include "Fade.h"

#include <utility>

#include <QGraphicsOpacityEffect>
#include <QPropertyAnimation>
#include <QWidget>

#include "Motion.h"
#include "Theme.h"

namespace zephyrix {

namespace {

void fade(QWidget* view, double from, double to, std::function<void()> finished) {
    auto* effect = new QGraphicsOpacityEffect(view);
    effect->setOpacity(from);
    view->setGraphicsEffect(effect);
    auto* animation = new QPropertyAnimation(effect, "opacity", view);
    animation->setDuration(Theme::fadeDuration);
    animation->setStartValue(from);
    animation->setEndValue(to);
    // The effect is the connection's context, and stopFade() deletes it: nothing of the lambda may
    // be touched after it.
    QObject::connect(animation, &QAbstractAnimation::finished, effect,
                     [view, done = std::move(finished)] {
                         const std::function<void()> last = done;
                         stopFade(view);
                         if (last)
                             last();
                     });
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

}  // namespace

void fadeIn(QWidget* view) {
    if (!Motion::isReduced())
        fade(view, 0.0, 1.0, {});
}

void fadeOut(QWidget* view, std::function<void()> finished) {
    if (Motion::isReduced())
        finished();
    else
        fade(view, 1.0, 0.0, std::move(finished));
}

void stopFade(QWidget* view) {
    view->setGraphicsEffect(nullptr);
}

}  // namespace zephyrix
