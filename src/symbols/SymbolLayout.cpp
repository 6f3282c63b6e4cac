#include "SymbolLayout.h"

#include <algorithm>
#include <array>
#include <optional>

#include "foundation/FatalError.h"

namespace zephyrix {

namespace {

/// A layer's size as a part of the canvas, and where its centre lies from the left and the top.
struct Placement {
    double scale;
    double x;
    double y;
};
using Place = std::optional<Placement>;  // nothing: the layer fills the canvas

// Sets of cloud digits, a bit a digit.
using CloudDigits = unsigned;
constexpr CloudDigits anyCloud = 0b11'1111'1111;
constexpr CloudDigits noCloud = 0b00'0000'0001;
constexpr CloudDigits cloud1Or4 = 0b00'0001'0010;
constexpr CloudDigits cloud1To8 = 0b01'1111'1110;

struct LayoutCase {
    bool celestrial;
    bool precipitation;
    CloudDigits clouds;
    Place sun;
    Place moon;
    Place cloud;
    Place prec;
};

constexpr Place fullCanvas = std::nullopt;

// The first row that fits decides.
constexpr std::array layoutCases{
    // No body: the cloud alone, over precipitation, and precipitation without a cloud.
    LayoutCase{false, false, anyCloud, fullCanvas, fullCanvas, Placement{1.0, 0.5, 0.5},
               fullCanvas},
    LayoutCase{false, true, noCloud, fullCanvas, fullCanvas, Placement{0.9, 0.52, 0.375},
               Placement{1.0, 0.5, 0.2}},
    LayoutCase{false, true, anyCloud, fullCanvas, fullCanvas, Placement{0.9, 0.52, 0.375},
               Placement{1.0, 0.5, 0.4512}},
    // The small clouds leave more of the body free.
    LayoutCase{true, true, cloud1Or4, Placement{0.8, 0.4, 0.375}, Placement{0.75, 0.3975, 0.375},
               Placement{0.95, 0.615, 0.416}, Placement{1.0, 0.5391, 0.5}},
    LayoutCase{true, false, cloud1Or4, Placement{0.9, 0.4, 0.475}, Placement{0.84, 0.4063, 0.475},
               Placement{1.0, 0.6397, 0.5303}, fullCanvas},
    // All others, also no cloud: a clear sky has its sun up and to the left of the middle.
    LayoutCase{true, true, cloud1To8, Placement{0.8, 0.435, 0.3516}, Placement{0.75, 0.435, 0.3516},
               Placement{0.925, 0.5127, 0.422}, fullCanvas},
    LayoutCase{true, true, anyCloud, Placement{0.8, 0.5, 0.5}, Placement{0.75, 0.5, 0.5},
               Placement{0.925, 0.5127, 0.422}, fullCanvas},
    LayoutCase{true, false, anyCloud, Placement{0.8, 0.435, 0.4492}, Placement{0.75, 0.435, 0.4492},
               Placement{0.925, 0.5127, 0.5193}, fullCanvas},
};

const LayoutCase& layoutCase(const SymbolParts& parts) {
    const auto* const found = std::ranges::find_if(layoutCases, [&](const LayoutCase& row) {
        return row.celestrial == parts.celestrial && row.precipitation == parts.precipitation &&
               ((row.clouds >> parts.cloud) & 1U) != 0;
    });
    if (found == layoutCases.end())
        fatalError(QStringLiteral("no layout for cloud digit %1").arg(parts.cloud));
    return *found;
}

QRectF placed(const Place& place, const QRectF& canvas) {
    if (!place)
        return canvas;
    return positionAtCenter(scaleAndCenter(canvas, place->scale, canvas),
                            QPointF(place->x, place->y), canvas);
}

}  // namespace

QRectF scaleAndCenter(const QRectF& rect, double scale, const QRectF& canvas) {
    return QRectF(rect.x() * scale, rect.y() * scale, rect.width() * scale, rect.height() * scale)
        .translated((1 - scale) / 2 * canvas.width(), (1 - scale) / 2 * canvas.height());
}

QRectF positionAtCenter(const QRectF& rect, const QPointF& point, const QRectF& canvas) {
    return rect.translated((point.x() - 0.5) * canvas.width(), (0.5 - point.y()) * canvas.height());
}

SymbolRects symbolRects(const SymbolParts& parts, const QRectF& canvas) {
    const LayoutCase& row = layoutCase(parts);
    return {placed(parts.sun ? row.sun : row.moon, canvas), placed(row.cloud, canvas),
            placed(row.prec, canvas)};
}

}  // namespace zephyrix
