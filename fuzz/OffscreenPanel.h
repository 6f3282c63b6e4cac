#pragma once

#include <QVariantMap>

#include "host/PanelView.h"
#include "model/LocationResult.h"
#include "widget/TodayViewController.h"

namespace zephyrix::fuzz {

/// The panel without a screen: the same controller, views and reports as the program's.
class OffscreenPanel {
  public:
    /// Starts it on the stores as they are, without a feed.
    OffscreenPanel();

    [[nodiscard]] TodayViewController& controller() { return controller_; }
    /// Lays both rows out, paints them, and asks for the report, at one of the usual widths and
    /// scales; which one, the number decides.
    void layOut(std::size_t variant);

  private:
    TodayViewController controller_;
    PanelView view_;
};

/// Some documents stop the panel, by rule: the rows and the start are strict, and the host's start
/// guard puts such a document aside. These are the rules, word by word; an input is spared what
/// they forbid, and nothing else: every other stop is a finding.
///
/// A row shows no observation without "tt", "ff" or "td".
[[nodiscard]] bool stopsTheRow(const Obs& observation);
/// A start with these stores stops: the document is without observation; it, or the place, is
/// without "uid" while the observation is valid; or it is restored and stops the row.
[[nodiscard]] bool stopsTheStart(const QVariantMap& cached, const LocationResult& place);

}  // namespace zephyrix::fuzz
