#pragma once

#include <functional>

class QWidget;

namespace zephyrix {

/// Lets a view appear within Theme::fadeDuration; at once where motion is reduced.
void fadeIn(QWidget* view);
/// Lets a view vanish, then calls `finished`; at once where motion is reduced. Not called when the
/// view is destroyed or stopFade() comes first.
void fadeOut(QWidget* view, std::function<void()> finished);
/// Ends a fade that is under way: the view is fully there again.
void stopFade(QWidget* view);

}  // namespace zephyrix
