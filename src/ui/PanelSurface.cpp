#include "PanelSurface.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "Theme.h"

namespace zephyrix {

namespace {

constexpr int shadowReach = 24;  // points on each side
constexpr int shadowDrop = 6;    // points: the light comes from above

QColor opaque(QColor color) {
    color.setAlpha(255);
    return color;
}

// Rings of falling strength, laid over each other from the outside in: cheap, and soft enough.
void paintShadow(QPainter& painter, const QRectF& area) {
    constexpr int rings = shadowReach - shadowDrop;
    QColor color = Theme::color(Theme::Color::Shadow);
    const double strength = color.alphaF();
    painter.setPen(Qt::NoPen);
    for (int ring = rings; ring > 0; --ring) {
        const double nearness = 1.0 - static_cast<double>(ring) / rings;
        color.setAlphaF(static_cast<float>(strength * nearness * 2.0 / rings));
        painter.setBrush(color);
        const double radius = Theme::surfaceRadius + ring;
        painter.drawRoundedRect(area.adjusted(-ring, -ring, ring, ring).translated(0, shadowDrop),
                                radius, radius);
    }
}

// Qt gives a gradient of more rows to threads of its own. Here they cost more than they save, and
// each wakes up once more, to end, half a minute after the paint.
void fillInBands(QPainter& painter, const QPainterPath& shape, const QBrush& brush) {
    constexpr double rowsAtOnce = 64.0;  // pixels
    const QRectF area = shape.boundingRect();
    const double height = rowsAtOnce / painter.device()->devicePixelRatioF();
    for (double top = area.top(); top < area.bottom(); top += height) {
        painter.save();
        painter.setClipRect(QRectF(area.left(), top, area.width(), height), Qt::IntersectClip);
        painter.fillPath(shape, brush);
        painter.restore();
    }
}

}  // namespace

PanelSurface::PanelSurface(QWidget* parent) : QWidget(parent) {}

void PanelSurface::setContent(QWidget* content) {
    content_ = content;
    content->setParent(this);
    placeContent();
    content->show();
}

void PanelSurface::setSurfaceHeight(double height) {
    surfaceHeight_ = height;
    placeContent();
    update();
}

void PanelSurface::setComposited(bool composited) {
    composited_ = composited;
    placeContent();
    update();
}

QMargins PanelSurface::shadowMargins() const {
    return composited_ ? QMargins(shadowReach, shadowReach - shadowDrop, shadowReach,
                                  shadowReach + shadowDrop)
                       : QMargins();
}

QRectF PanelSurface::surfaceArea() const {
    const QRectF inner = QRectF(rect().marginsRemoved(shadowMargins()));
    return {inner.x(), inner.y(), inner.width(), surfaceHeight_};
}

QRegion PanelSurface::maskRegion() const {
    QPainterPath path;
    path.addRoundedRect(surfaceArea(), Theme::surfaceRadius, Theme::surfaceRadius);
    return {path.toFillPolygon().toPolygon()};
}

void PanelSurface::placeContent() {
    if (content_ != nullptr)
        content_->setGeometry(surfaceArea().toRect());
}

void PanelSurface::paintSurface(QPainter& painter, const QRectF& area, bool composited) {
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(area, Theme::surfaceRadius, Theme::surfaceRadius);
    if (composited) {
        painter.save();
        QPainterPath outside;
        outside.addRect(
            area.adjusted(-shadowReach * 2, -shadowReach * 2, shadowReach * 2, shadowReach * 2));
        painter.setClipPath(outside.subtracted(shape));
        paintShadow(painter, area);
        painter.restore();
    }
    QLinearGradient ground(area.topLeft(), area.bottomLeft());
    const QColor top = Theme::color(Theme::Color::SurfaceTop);
    const QColor bottom = Theme::color(Theme::Color::SurfaceBottom);
    ground.setColorAt(0.0, composited ? top : opaque(top));
    ground.setColorAt(1.0, composited ? bottom : opaque(bottom));
    fillInBands(painter, shape, ground);
    painter.setPen(QPen(Theme::color(Theme::Color::SurfaceEdge), 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), Theme::surfaceRadius - 0.5,
                            Theme::surfaceRadius - 0.5);
}

void PanelSurface::fill(QPainter& painter, const QWidget& view, const QColor& color) {
    const QWidget* around = view.parentWidget();
    while (around != nullptr && qobject_cast<const PanelSurface*>(around) == nullptr)
        around = around->parentWidget();
    const auto* surface = qobject_cast<const PanelSurface*>(around);
    if (surface == nullptr) {
        painter.fillRect(view.rect(), color);
        return;
    }
    QPainterPath inside;
    inside.addRoundedRect(surface->surfaceArea().translated(-view.mapTo(surface, QPoint())),
                          Theme::surfaceRadius, Theme::surfaceRadius);
    QPainterPath area;
    area.addRect(view.rect());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(area.intersected(inside), color);
}

void PanelSurface::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintSurface(painter, surfaceArea(), composited_);
}

void PanelSurface::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeContent();
}

}  // namespace zephyrix
