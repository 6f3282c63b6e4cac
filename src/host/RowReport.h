#pragma once

#include <QJsonObject>
#include <QString>

#include "widget/TodayViewController.h"

namespace zephyrix {

/// What the panel's rows show, read from the rows themselves after a layout pass.
class RowReport {
  public:
    explicit RowReport(TodayViewController& controller);

    /// {"expanded": ..., "source": ..., "licence": ..., "rows": [...]}; docs/usage.md describes it.
    [[nodiscard]] const QJsonObject& json() const noexcept { return report_; }
    /// The same in lines for people, with a line break at the end.
    [[nodiscard]] QString text() const;

    /// What the feed says about the source of the document on display, "demonstration" in the
    /// user's language; empty where it does not say.
    [[nodiscard]] static QString source(const TodayViewController& controller);
    /// The line that the source wants to be shown with its weather; empty where the feed gives
    /// none.
    [[nodiscard]] static QString licence(const TodayViewController& controller);

  private:
    QJsonObject report_;
};

}  // namespace zephyrix
