#include "OffscreenPanel.h"

#include <array>

#include <QCoreApplication>
#include <QEvent>
#include <QImage>

#include "cells/Registration.h"
#include "host/RowReport.h"

namespace zephyrix::fuzz {

namespace {

struct Variant {
    int width;  // points; 3, 4 and 5 columns
    double scale;
};
constexpr std::array variants{Variant{360, 1.0}, Variant{400, 1.25}, Variant{440, 2.0}};

TodayViewController startedController() {
    registerCells();
    return TodayViewController([](const auto&) {});
}

}  // namespace

OffscreenPanel::OffscreenPanel() : controller_(startedController()), view_(controller_) {
    // Its pictures would pile up, one a code, in memory and on disk.
    controller_.cs().setUseCache(false);
    controller_.setShowingAll(true);
}

void OffscreenPanel::layOut(std::size_t variant) {
    const auto& [width, scale] = variants.at(variant % variants.size());
    view_.layOut(width, scale);
    QImage picture(view_.size() * scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    view_.render(&picture);
    const RowReport report(controller_);
    static_cast<void>(report.text());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

bool stopsTheRow(const Obs& observation) {
    return !observation.tt || !observation.ff || !observation.td;
}

bool stopsTheStart(const QVariantMap& cached, const LocationResult& place) {
    if (!dictionaryFrom(cached.value(QStringLiteral("obs"))))
        return true;
    const WeatherData document(cached);
    if (!document.isValid())
        return false;
    if (!document.uid || !place.uid())
        return true;
    return *document.uid == *place.uid() && stopsTheRow(*document.obs);
}

}  // namespace zephyrix::fuzz
