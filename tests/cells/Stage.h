#pragma once

#include <memory>
#include <optional>

#include <QFont>
#include <QVariantList>
#include <QVariantMap>

#include "cells/ForecastCell.h"
#include "cells/ObsCell.h"
#include "foundation/UserDefaults.h"
#include "symbols/QKCompoundSymbol.h"
#include "ui/PanelSurface.h"
#include "ui/TableViewController.h"

namespace zephyrix::testing {

/// What the two rows are given.
struct Weather {
    QVariantMap place;
    QVariantMap observation;  // as the feed has it
    QVariantList days;
};

/// Berlin on 2015-06-01 at 10:00 UTC with a light shower, and the six days from then on.
[[nodiscard]] Weather showerInBerlin();

/// The environment's language and regional conventions, for everything that is shown next.
void useLanguage(const char* locale);

/// While it lives, the desktop has texts of this scale.
class TextSize {
  public:
    explicit TextSize(double scale);
    ~TextSize();
    TextSize(const TextSize&) = delete;
    TextSize& operator=(const TextSize&) = delete;

  private:
    QFont before_;
};

/// A table of the two rows in the panel's own layouts, on its surface: real widgets without the
/// panel's controller. Needs an application object, as do all widgets.
class Stage : public TableViewController {
    Q_OBJECT

  public:
    /// width in points of the panel; scale in pixels a point of the screen.
    Stage(Weather weather, int width, double scale);
    ~Stage() override;

    [[nodiscard]] UserDefaults& defaults() { return *defaults_; }
    [[nodiscard]] ObsCell* obsCell();
    /// Null while collapsed.
    [[nodiscard]] ForecastCell* forecastCell();
    void toggle();
    /// Lays everything out in its present size.
    void layOut();

    void connectOutlets() override;
    [[nodiscard]] int numberOfRowsInSection(int section) override;
    [[nodiscard]] TableCell* cellForRowAtIndexPath(const IndexPath& path) override;
    [[nodiscard]] double heightForRowAtIndexPath(const IndexPath& path) override;
    void willDisplayCell(TableCell* cell, const IndexPath& path) override;
    void didSelectRowAtIndexPath(const IndexPath& path) override;

  private:
    Weather weather_;
    int width_;
    double scale_;
    bool expanded_ = false;
    std::unique_ptr<UserDefaults> defaults_;
    QKCompoundSymbol symbols_;
    PanelSurface surface_;
};

}  // namespace zephyrix::testing
