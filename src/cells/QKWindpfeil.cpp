#include "QKWindpfeil.h"

#include <algorithm>
#include <limits>

#include "foundation/Localized.h"
#include "foundation/UserDefaults.h"
#include "meteo/MeteoMapping.h"
#include "symbols/QKWeatherSymbols.h"
#include "ui/Motion.h"
#include "ui/NotificationQueue.h"
#include "ui/ScreenReader.h"

namespace zephyrix {

namespace {

Number int32Value(const QString& text) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t value = integerValueOf(text);
    return Number(static_cast<int>(
        std::clamp(value, std::int64_t{Limits::min()}, std::int64_t{Limits::max()})));
}

std::int64_t integerOf(const std::optional<Number>& number) {
    return number ? number->integerValue() : 0;
}

std::int64_t ownWindUnit() {
    return UserDefaults::standard().integer(QStringLiteral("wind"));
}

QFont boldFont(int size) {
    QFont font = Theme::font(Theme::TextStyle::Value);
    font.setPixelSize(size);
    font.setBold(true);
    return font;
}

void showText(Label* label, const QString& text) {
    if (label == nullptr)
        return;
    label->setText(text);
    label->setAccessibleName(text);
}

void showOwnUnit(Label* label) {
    if (label != nullptr)
        label->setText(MeteoMapping::windUnitForUnit(ownWindUnit()));
}

void setShown(QWidget* view, bool shown) {
    if (view != nullptr)
        view->setVisible(shown);
}

template <class T>
T* viewOn(const QRect& frame, QWidget* parent) {
    T* view = new T(parent);
    view->setGeometry(frame);
    return view;
}

bool isSame(const std::optional<Number>& a, const std::optional<Number>& b) {
    return a && b ? a->isSameObject(*b) : a.has_value() == b.has_value();
}

}  // namespace

QKWindpfeil::QKWindpfeil(QWidget* parent)
    : View(parent), swing_([this](double degrees) {
          if (windPfeil_)
              windPfeil_->setRotation(degrees);
      }) {}

QKWindpfeil::QKWindpfeil(const QRect& frame, QWidget* parent) : QKWindpfeil(parent) {
    setGeometry(frame);
    QKWindpfeil::doInit();
    windBg_ = viewOn<ImageView>(frame, this);
    windPfeil_ = viewOn<ImageView>(frame, this);
    windSpeedLabel_ = viewOn<Label>(frame, this);
    windSpeedMaxLabel_ = viewOn<Label>(frame, this);
}

QKWindpfeil::~QKWindpfeil() {
    NotificationQueue::standard().removeObserver(this);
}

void QKWindpfeil::doInit() {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    if (windSpeedMaxDescLabel_)
        windSpeedMaxDescLabel_->setText(localized(u"Gusts"));
    setAutoCreateLabels(false);
}

void QKWindpfeil::connectOutlets() {
    setWindBg(findChild<ImageView*>(QStringLiteral("windBg")));
    setWindPfeil(findChild<ImageView*>(QStringLiteral("windPfeil")));
    setWindSpeedLabel(findChild<Label*>(QStringLiteral("windSpeedLabel")));
    setWindSpeedUnitsLabel(findChild<Label*>(QStringLiteral("windSpeedUnitsLabel")));
    setWindSpeedMaxDescLabel(findChild<Label*>(QStringLiteral("windSpeedMaxDescLabel")));
    setWindSpeedMaxLabel(findChild<Label*>(QStringLiteral("windSpeedMaxLabel")));
    setWindSpeedMaxUnitsLabel(findChild<Label*>(QStringLiteral("windSpeedMaxUnitsLabel")));
}

void QKWindpfeil::awakeFromNib() {
    doInit();
}

template <class T>
void QKWindpfeil::replace(QPointer<T>& current, T* view) {
    if (current == view)
        return;
    if (view != nullptr) {
        if (view->parentWidget() != this)
            view->setParent(this);
        view->raise();
        // Below whatever lies directly above the old view: that is directly above the old one.
        if (current) {
            const QObjectList siblings = children();
            const auto old = siblings.indexOf(current.data());
            for (auto next = old + 1; next < siblings.size(); ++next)
                if (auto* above = qobject_cast<QWidget*>(siblings.at(next)); above != nullptr) {
                    if (above != view)
                        view->stackUnder(above);
                    break;
                }
        }
    }
    delete current;
    current = view;
}

void QKWindpfeil::setWindBg(ImageView* view) {
    replace(windBg_, view);
}

void QKWindpfeil::setWindPfeil(ImageView* view) {
    replace(windPfeil_, view);
}

void QKWindpfeil::setWindSpeedLabel(Label* view) {
    replace(windSpeedLabel_, view);
}

void QKWindpfeil::setWindSpeedMaxLabel(Label* view) {
    replace(windSpeedMaxLabel_, view);
}

void QKWindpfeil::buildSpeedLabel() {
    constexpr double share = 0.34;        // of the view
    constexpr double smallestText = 0.1;  // of the font's size
    constexpr int fontSize = 16;          // points
    // As wide as its share of the shorter side, but as high as its share of the height.
    const double labelWidth = share * std::min(width(), height());
    const double labelHeight = share * height();
    auto* label = new Label(this);
    label->setExactFrame(
        {(width() - labelWidth) / 2.0, (height() - labelHeight) / 2.0, labelWidth, labelHeight});
    label->setAlignment(Qt::AlignCenter);
    label->setBackgroundColor(backgroundColor());
    label->setTextColor(Qt::white);
    label->setMinimumScale(smallestText);
    label->setTextFont(boldFont(fontSize));
    // Opaque, as far as there is a background to fill it with.
    label->setAttribute(Qt::WA_OpaquePaintEvent, backgroundColor().alpha() == 255);
    label->show();
    windSpeedLabel_ = label;
}

void QKWindpfeil::setWindSpeed(const QString& text) {
    windSpeed_ = text;
    if (autoCreateLabels() && !windSpeedLabel_)
        buildSpeedLabel();
    showText(windSpeedLabel_, text);
    setNumSpeed(int32Value(text));
    showOwnUnit(windSpeedUnitsLabel_);
}

void QKWindpfeil::setWindSpeedMax(const QString& text) {
    windSpeedMax_ = text;
    showText(windSpeedMaxLabel_, text);
    setNumSpeedMax(int32Value(text));
    showOwnUnit(windSpeedMaxUnitsLabel_);
}

void QKWindpfeil::setDirection(const std::optional<Number>& direction) {
    setDirection(direction, false);
}

void QKWindpfeil::buildDirectionViews() {
    constexpr int fontSize = 17;          // points
    constexpr double smallestText = 0.5;  // of the font's size
    const QRect frame(0, 0, std::min(width(), height()), height());
    if (!windBg_) {
        windBg_ = viewOn<ImageView>(frame, this);
        windBg_->setImage(QKWeatherSymbols::imageForSymbolName(
            QStringLiteral("WindLabelSquare.png"), windBg_->boundsSize()));
        windBg_->lower();
    }
    if (!labelView_) {
        auto* label = viewOn<Label>(frame, this);
        label->setTextColor(Qt::white);
        label->setAlignment(Qt::AlignCenter);
        label->setTextFont(boldFont(fontSize));
        label->setMinimumScale(smallestText);
        setLabelView(label);
    }
    if (!windPfeil_) {
        // Asked for at the background's size, so that both images match.
        windPfeil_ = viewOn<ImageView>(frame, this);
        windPfeil_->setImage(QKWeatherSymbols::imageForSymbolName(
            QStringLiteral("WindPfeilSquare.png"), windBg_->boundsSize()));
    }
}

void QKWindpfeil::setDirection(const std::optional<Number>& direction, bool animated) {
    if (autoCreateLabels())
        buildDirectionViews();
    if (!isSame(direction, direction_)) {
        direction_ = direction;
        const std::int64_t speed = integerOf(numSpeed_);
        const std::int64_t degrees = integerOf(direction);
        if (labelView_)
            labelView_->setText(QStringLiteral("%1\n%2").arg(
                MeteoMapping::windStringForSector(MeteoMapping::mapWindToSector(degrees, speed)),
                QString::number(speed)));
        turnArrow(static_cast<double>(degrees), animated);
    }
    refreshArrow();
}

void QKWindpfeil::turnArrow(double degrees, bool animated) {
    if (!windPfeil_)
        return;
    if (animated && !Motion::isReduced()) {
        swing_.start(windPfeil_->rotation(), degrees);
        return;
    }
    swing_.interrupt();
    windPfeil_->setRotation(degrees);
}

void QKWindpfeil::refreshArrow() {
    setShown(windBg_, true);
    setShown(windPfeil_, true);
    setShown(windSpeedLabel_, true);
    setShown(labelView_, false);
    if (!ScreenReader::isRunning() || !windPfeil_)
        return;
    const QString degrees = QString::number(integerOf(direction_));
    QString spoken = localized(u"Wind:%d degrees %@", degrees);
    spoken.replace(QStringLiteral("%d"), degrees);
    spoken.replace(QStringLiteral("%@"),
                   MeteoMapping::formattedWindString(numSpeed_, ownWindUnit()));
    windPfeil_->setAccessibleName(spoken);
}

void QKWindpfeil::doubleTap(QObject* /*sender*/) {
    const bool shown = windPfeil_ && windPfeil_->isHidden();
    setShown(windBg_, shown);
    setShown(windPfeil_, shown);
    NotificationQueue::standard().postNow(QStringLiteral("QKArrowSettingChanged"), this);
}

void QKWindpfeil::singleTap(QObject* /*sender*/) {}

// Out of sight nothing moves: a swing ends as by any other interruption.
void QKWindpfeil::hideEvent(QHideEvent* event) {
    View::hideEvent(event);
    swing_.interrupt();
}

}  // namespace zephyrix
