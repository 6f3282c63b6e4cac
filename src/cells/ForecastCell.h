#pragma once

#include <optional>

#include <QPointer>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include "ForecastDayView.h"
#include "foundation/DateFormatter.h"
#include "foundation/UserDefaults.h"
#include "meteo/UnitTable.h"
#include "model/LocationResult.h"
#include "symbols/QKCompoundSymbol.h"
#include "ui/Nib.h"
#include "ui/TableCell.h"

namespace zephyrix {

/// The row of the forecast: a strip of equally wide day columns, as many as the screen has room
/// for. Each layout pass makes the columns anew.
///
/// A day is a dictionary of the feed: "date" (text, yyyy-MM-dd), "symbol" (integer code), "tx" and
/// "tn" (numbers, degrees Celsius). The settings and the symbol renderer are not owned and must
/// outlive the cell's last layout pass.
class ForecastCell : public TableCell {
    Q_OBJECT

  public:
    explicit ForecastCell(QWidget* parent = nullptr);

    [[nodiscard]] virtual QWidget* container() const { return container_; }
    virtual void setContainer(QWidget* container) { container_ = container; }
    [[nodiscard]] virtual std::optional<LocationResult> location() const { return location_; }
    virtual void setLocation(const std::optional<LocationResult>& location) {
        location_ = location;
    }
    [[nodiscard]] virtual std::optional<QVariantList> data() const { return data_; }
    /// Keeps only the days from today on: "today" is that of this moment, not of a later layout.
    virtual void setData(const std::optional<QVariantList>& data);
    [[nodiscard]] virtual UserDefaults* defaults() const { return defaults_; }
    virtual void setDefaults(UserDefaults* defaults) { defaults_ = defaults; }
    [[nodiscard]] virtual QKCompoundSymbol* cs() const { return cs_; }
    virtual void setCs(QKCompoundSymbol* cs) { cs_ = cs; }

    void connectOutlets() override;
    void awakeFromNib() override;
    void setHighlighted(bool highlighted, bool animated) override;
    void setSelected(bool selected, bool animated) override;
    void layoutSubviews() override;
    /// 5 columns on a screen wider than 414 points, 4 on one wider than 375, else 3.
    [[nodiscard]] virtual int dayCountForScreen();
    /// Without days or place the columns stay as they were. Stops the process when the settings or
    /// the container are missing, or the renderer for a day that has a symbol.
    virtual void configureCell(const std::optional<QVariantList>& days);
    /// The column, put into the container and into its place; null when the layout gives none.
    [[nodiscard]] virtual ForecastDayView* instantiateAndConfigureForecastDayViewForIndex(
        int index, int dayCount);
    /// The abbreviated weekday; empty for no text, or one that is no date.
    [[nodiscard]] virtual QString dayFromDateString(const std::optional<QString>& text);
    /// The days from today on, in their order. A day without a date that can be read is dropped.
    [[nodiscard]] virtual QVariantList filterForecastDayArray(const QVariantList& days);

    [[nodiscard]] QString spokenText() const override;

  private:
    void emptyContainer();
    [[nodiscard]] ForecastDayView* newColumn();
    [[nodiscard]] ForecastDayView* columnWithTag(int tag) const;
    void showDay(const QVariantMap& day, ForecastDayView& column, UnitCode unit);
    static void fitTemperatures(const QList<ForecastDayView*>& columns);

    QPointer<QWidget> container_;
    std::optional<LocationResult> location_;
    std::optional<QVariantList> data_;
    UserDefaults* defaults_ = nullptr;
    QKCompoundSymbol* cs_ = nullptr;
    DateFormatter df_;
    DateFormatter spokenDf_;  // whole names of days, for screen readers
    DateFormatter dayStringParser_;
    Nib nib_;
    QList<ForecastDayView*> spareColumns_;  // during a pass: without a day, owned by the container
    QStringList spokenDays_;                // of the columns on display
};

}  // namespace zephyrix
