#pragma once

#include <optional>

#include <QPointer>

#include "QKWindpfeil.h"
#include "SpokenWeather.h"
#include "foundation/DateFormatter.h"
#include "foundation/UserDefaults.h"
#include "model/LocationResult.h"
#include "model/Obs.h"
#include "symbols/QKCompoundSymbol.h"
#include "ui/ImageView.h"
#include "ui/TableCell.h"

namespace zephyrix {

/// The row of the latest observation. Each layout pass fills all its views from what it was given,
/// so a change of anything shows after the next pass.
///
/// The views come from the layout "ObsCell"; the settings and the symbol renderer are not owned and
/// must outlive the cell's last layout pass.
class ObsCell : public TableCell {
    Q_OBJECT

  public:
    explicit ObsCell(QWidget* parent = nullptr);

    [[nodiscard]] virtual ImageView* symbol() const { return symbol_; }
    virtual void setSymbol(ImageView* view) { symbol_ = view; }
    [[nodiscard]] virtual Label* titleLabel() const { return titleLabel_; }
    virtual void setTitleLabel(Label* view) { titleLabel_ = view; }
    [[nodiscard]] virtual Label* dateLabel() const { return dateLabel_; }
    virtual void setDateLabel(Label* view) { dateLabel_ = view; }
    /// The air temperature.
    [[nodiscard]] virtual Label* detailLabel1() const { return detailLabel1_; }
    virtual void setDetailLabel1(Label* view) { detailLabel1_ = view; }
    /// The weather in words.
    [[nodiscard]] virtual Label* detailLabel2() const { return detailLabel2_; }
    virtual void setDetailLabel2(Label* view) { detailLabel2_ = view; }
    [[nodiscard]] virtual QKWindpfeil* windContainer() const { return windContainer_; }
    virtual void setWindContainer(QKWindpfeil* view) { windContainer_ = view; }
    [[nodiscard]] virtual QWidget* rainContainer() const { return rainContainer_; }
    virtual void setRainContainer(QWidget* view) { rainContainer_ = view; }
    [[nodiscard]] virtual Label* rrr() const { return rrr_; }
    virtual void setRrr(Label* view) { rrr_ = view; }
    [[nodiscard]] virtual Label* rrrUnits() const { return rrrUnits_; }
    virtual void setRrrUnits(Label* view) { rrrUnits_ = view; }
    [[nodiscard]] virtual Label* rrrhLabel() const { return rrrhLabel_; }
    virtual void setRrrhLabel(Label* view) { rrrhLabel_ = view; }
    [[nodiscard]] virtual Label* ppp() const { return ppp_; }
    virtual void setPpp(Label* view) { ppp_ = view; }
    [[nodiscard]] virtual Label* pppUnits() const { return pppUnits_; }
    virtual void setPppUnits(Label* view) { pppUnits_ = view; }

    [[nodiscard]] virtual std::optional<LocationResult> location() const { return location_; }
    /// Moves the time formatter to the place's zone. An absent place is a programming error; a zone
    /// name that is not known leaves the formatter with the system's zone.
    virtual void setLocation(const std::optional<LocationResult>& location);
    [[nodiscard]] virtual std::optional<Obs> data() const { return data_; }
    virtual void setData(const std::optional<Obs>& data) { data_ = data; }
    /// The shared store, which holds the unit choices.
    [[nodiscard]] virtual UserDefaults* defaults() const { return defaults_; }
    virtual void setDefaults(UserDefaults* defaults) { defaults_ = defaults; }
    [[nodiscard]] virtual QKCompoundSymbol* cs() const { return cs_; }
    virtual void setCs(QKCompoundSymbol* cs) { cs_ = cs; }
    /// Formats the observation time.
    [[nodiscard]] virtual DateFormatter& df() { return df_; }

    void connectOutlets() override;
    void awakeFromNib() override;
    void setHighlighted(bool highlighted, bool animated) override;
    void setSelected(bool selected, bool animated) override;
    void layoutSubviews() override;
    /// Without record or place everything stays as it was. Stops the process when the settings, the
    /// renderer, or one of the record's tt, ff and td are missing.
    virtual void configureCell(const std::optional<Obs>& record);

    /// Whole hours since the observation: from 2 on, when the row says how old it is.
    [[nodiscard]] static std::optional<std::int64_t> shownAge(const Obs& record);
    /// "3 h ago" in the user's language; empty where the row says nothing.
    [[nodiscard]] static QString ageText(const Obs& record);
    /// When that changes next, as long as the record stays; nothing for one without a date.
    [[nodiscard]] static std::optional<Instant> nextAge(const Obs& record);

    [[nodiscard]] QString spokenText() const override;

  private:
    [[nodiscard]] ChosenUnits chosenUnits() const;
    void fitSymbol();
    void retargetTime();
    void showSymbol(const Obs& record);
    void showWeather(const Obs& record);
    void showTemperature(const Obs& record, UnitCode unit);
    void showWind(const Obs& record, UnitCode unit);
    void showPrecipitation(const Obs& record, UnitCode unit);
    void showPressure(const Obs& record, UnitCode unit);
    void showTime(const Obs& record);
    void showAge(const Obs& record);

    QPointer<ImageView> symbol_;
    QPointer<Label> titleLabel_;
    QPointer<Label> dateLabel_;
    QPointer<Label> ageLabel_;  // says that the observation is old; may be missing in a layout
    QPointer<Label> detailLabel1_;
    QPointer<Label> detailLabel2_;
    QPointer<QKWindpfeil> windContainer_;
    QPointer<QWidget> rainContainer_;
    QPointer<Label> rrr_;
    QPointer<Label> rrrUnits_;
    QPointer<Label> rrrhLabel_;
    QPointer<Label> ppp_;
    QPointer<Label> pppUnits_;
    std::optional<LocationResult> location_;
    std::optional<Obs> data_;
    UserDefaults* defaults_ = nullptr;
    QKCompoundSymbol* cs_ = nullptr;
    DateFormatter df_;
};

}  // namespace zephyrix
