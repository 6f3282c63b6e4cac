// What a layout pass of both rows costs when symbols and formatters are warm, beside its floor:
// painting the same labels and images with no logic at all. The quotient holds on any machine.
#include <algorithm>
#include <chrono>
#include <limits>

#include <QApplication>
#include <QPainter>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include "Stage.h"
#include "foundation/Clock.h"

namespace zephyrix {
namespace {

using testing::showerInBerlin;
using testing::Stage;

constexpr int width = 440;     // points: five columns
constexpr double scale = 2.0;  // pixels a point

Stage& stage() {
    static Stage* const made = [] {
        auto* expanded = new Stage(showerInBerlin(), width, scale);
        expanded->layOut();
        expanded->toggle();
        expanded->layOut();
        return expanded;
    }();
    return *made;
}

void layOut(TableCell* cell) {
    cell->setNeedsLayout();
    cell->layoutIfNeeded();
}

void layOutBothRows() {
    layOut(stage().obsCell());
    layOut(stage().forecastCell());
}

struct Shown {
    QPointF place;
    const Label* label = nullptr;
    const ImageView* image = nullptr;
};

// Every label that has a text and every image on the rows, with its place.
QList<Shown> shownViews() {
    QList<Shown> shown;
    for (const TableCell* cell : {static_cast<TableCell*>(stage().obsCell()),
                                  static_cast<TableCell*>(stage().forecastCell())}) {
        for (const Label* label : cell->findChildren<Label*>())
            shown << Shown{label->mapTo(cell, QPoint()), label, nullptr};
        for (const ImageView* image : cell->findChildren<ImageView*>())
            shown << Shown{image->mapTo(cell, QPoint()), nullptr, image};
    }
    return shown;
}

// The floor: plain text and plain images, already scaled, at places known beforehand.
void paintPlainly(QImage& canvas, const QList<Shown>& shown) {
    QPainter painter(&canvas);
    for (const Shown& view : shown) {
        if (view.label != nullptr) {
            painter.setFont(Theme::font(*Theme::textStyleNamed(view.label->textStyleName())));
            painter.setPen(view.label->textColor());
            painter.drawText(view.place + QPointF(0, view.label->height()), view.label->text());
        } else if (!view.image->image().isNull()) {
            painter.drawImage(view.place, view.image->image());
        }
    }
}

QImage canvasForRows() {
    QImage canvas(QSize(width, 214) * scale, QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(scale);
    canvas.fill(Qt::transparent);
    return canvas;
}

/// The best of several runs, in seconds: the others were disturbed.
template <class Work>
double secondsOf(const Work& work) {
    constexpr int runs = 300;
    double best = std::numeric_limits<double>::infinity();
    for (int run = 0; run < runs; ++run) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
        best = std::min(best, spent.count());
    }
    return best;
}

void layoutPass(benchmark::State& state) {
    QImage canvas = canvasForRows();
    for (auto _ : state)
        layOutBothRows();
    const double pass = secondsOf(layOutBothRows);
    const QList<Shown> shown = shownViews();
    const double floor = secondsOf([&] { paintPlainly(canvas, shown); });
    state.counters["pass_us"] = pass * 1e6;
    state.counters["floor_us"] = floor * 1e6;
    state.counters["quotient"] = pass / floor;
}
BENCHMARK(layoutPass);

void observationPass(benchmark::State& state) {
    for (auto _ : state)
        layOut(stage().obsCell());
}
BENCHMARK(observationPass);

void forecastPass(benchmark::State& state) {
    for (auto _ : state)
        layOut(stage().forecastCell());
}
BENCHMARK(forecastPass);

void columnFromLayout(benchmark::State& state) {
    stage();
    const Nib nib(QStringLiteral("ForecastDayView"));
    for (auto _ : state)
        delete nib.instantiate();
}
BENCHMARK(columnFromLayout);

}  // namespace
}  // namespace zephyrix

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_CACHE_HOME", home.path().toUtf8());
    const QApplication application(argc, argv);
    const zephyrix::ReplacedClock clock(
        [] { return zephyrix::Instant::fromSecondsSince1970(1433154000); });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
