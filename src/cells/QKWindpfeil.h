#pragma once

#include <memory>
#include <optional>

#include <QPointer>
#include <QString>

#include "ArrowSwing.h"
#include "foundation/Number.h"
#include "ui/ImageView.h"
#include "ui/Label.h"
#include "ui/Nib.h"
#include "ui/View.h"

namespace zephyrix {

/// Shows the wind: an arrow over a square background, turned clockwise by the direction the wind
/// comes from, so that it points to where the wind blows; the speed and its unit; optionally the
/// gusts.
///
/// Its views come from a layout (any of them may be missing there), from the frame constructor, or,
/// in self-building mode, are made when they are first needed. The view owns them all.
class QKWindpfeil : public View, public NibObject {
    Q_OBJECT

  public:
    /// For layouts: awakeFromNib() completes it.
    explicit QKWindpfeil(QWidget* parent = nullptr);
    /// With background, arrow, speed and gust labels of its own, each on this very rectangle, its
    /// origin included.
    explicit QKWindpfeil(const QRect& frame, QWidget* parent = nullptr);
    ~QKWindpfeil() override;

    /// Switches the mouse off and self-building too, and names the gusts.
    virtual void doInit();
    void connectOutlets() override;
    void awakeFromNib() override;

    [[nodiscard]] virtual ImageView* windBg() const { return windBg_; }
    [[nodiscard]] virtual ImageView* windPfeil() const { return windPfeil_; }
    [[nodiscard]] virtual Label* windSpeedLabel() const { return windSpeedLabel_; }
    [[nodiscard]] virtual Label* windSpeedMaxLabel() const { return windSpeedMaxLabel_; }
    /// These four put the new view directly above the old one and delete the old one. The view that
    /// is there already changes nothing.
    virtual void setWindBg(ImageView* view);
    virtual void setWindPfeil(ImageView* view);
    virtual void setWindSpeedLabel(Label* view);
    virtual void setWindSpeedMaxLabel(Label* view);

    [[nodiscard]] virtual Label* windSpeedUnitsLabel() const { return windSpeedUnitsLabel_; }
    virtual void setWindSpeedUnitsLabel(Label* view) { windSpeedUnitsLabel_ = view; }
    /// The gusts' caption.
    [[nodiscard]] virtual Label* windSpeedMaxDescLabel() const { return windSpeedMaxDescLabel_; }
    virtual void setWindSpeedMaxDescLabel(Label* view) { windSpeedMaxDescLabel_ = view; }
    [[nodiscard]] virtual Label* windSpeedMaxUnitsLabel() const { return windSpeedMaxUnitsLabel_; }
    virtual void setWindSpeedMaxUnitsLabel(Label* view) { windSpeedMaxUnitsLabel_ = view; }
    /// Sector name and speed on two lines; made in self-building mode only, and hidden by every
    /// refresh.
    [[nodiscard]] virtual Label* labelView() const { return labelView_; }
    virtual void setLabelView(Label* view) { labelView_ = view; }

    [[nodiscard]] virtual std::optional<QString> windSpeed() const { return windSpeed_; }
    /// Shows the text and reads numSpeed() from it. The unit label, where there is one, gets the
    /// wind unit of the program's own store.
    virtual void setWindSpeed(const QString& text);
    [[nodiscard]] virtual std::optional<QString> windSpeedMax() const { return windSpeedMax_; }
    virtual void setWindSpeedMax(const QString& text);

    /// The speed text read as a 32-bit integer; "-" gives 0.
    [[nodiscard]] virtual std::optional<Number> numSpeed() const { return numSpeed_; }
    virtual void setNumSpeed(std::optional<Number> speed) { numSpeed_ = speed; }
    [[nodiscard]] virtual std::optional<Number> numSpeedMax() const { return numSpeedMax_; }
    virtual void setNumSpeedMax(std::optional<Number> speed) { numSpeedMax_ = speed; }

    /// Degrees the wind comes from.
    [[nodiscard]] virtual std::optional<Number> direction() const { return direction_; }
    /// Not animated.
    virtual void setDirection(const std::optional<Number>& direction);
    /// The very number object that is set already turns nothing, but refreshes.
    virtual void setDirection(const std::optional<Number>& direction, bool animated);

    [[nodiscard]] virtual bool autoCreateLabels() const { return autoCreateLabels_; }
    virtual void setAutoCreateLabels(bool create) { autoCreateLabels_ = create; }

    /// Shows the arrow and its background again, and names the arrow for a running screen reader.
    virtual void refreshArrow();

    /// Hides or shows arrow and background, and posts "QKArrowSettingChanged".
    virtual void doubleTap(QObject* sender);
    virtual void singleTap(QObject* sender);

    /// The angle that the arrow moves through.
    [[nodiscard]] ArrowSwing& swing() noexcept { return swing_; }

  protected:
    void hideEvent(QHideEvent* event) override;

  private:
    template <class T>
    void replace(QPointer<T>& current, T* view);
    void buildSpeedLabel();
    void buildDirectionViews();
    void turnArrow(double degrees, bool animated);

    QPointer<ImageView> windBg_;
    QPointer<ImageView> windPfeil_;
    QPointer<Label> windSpeedLabel_;
    QPointer<Label> windSpeedUnitsLabel_;
    QPointer<Label> windSpeedMaxDescLabel_;
    QPointer<Label> windSpeedMaxLabel_;
    QPointer<Label> windSpeedMaxUnitsLabel_;
    QPointer<Label> labelView_;
    std::optional<QString> windSpeed_;
    std::optional<QString> windSpeedMax_;
    std::optional<Number> numSpeed_;
    std::optional<Number> numSpeedMax_;
    std::optional<Number> direction_;
    ArrowSwing swing_;
    bool autoCreateLabels_ = false;
};

}  // namespace zephyrix
