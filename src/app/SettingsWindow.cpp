#include "SettingsWindow.h"

#include <algorithm>

#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>

#include "Command.h"
#include "FeedState.h"
#include "LoginEntry.h"
#include "SharedSettings.h"
#include "foundation/Clock.h"
#include "foundation/Localized.h"
#include "foundation/Log.h"
#include "model/LocationResult.h"
#include "symbols/QKWeatherSymbols.h"

namespace zephyrix {

namespace {

constexpr int usualWidth = 460;   // points
constexpr int leastWidth = 420;   // below it, the window is scrolled sideways too
constexpr int placeHeight = 176;  // of the search and its results, or the place's card
constexpr int margin = 12;        // around everything
constexpr int sectionSpacing = 14;
constexpr QSize desktopsFrame(16, 40);  // about what a desktop puts around a window
constexpr int everyMinute = 60'000;     // milliseconds
const QString locationKey = QStringLiteral("location");

QLabel* heading(QWidget* parent, QStringView key) {
    auto* const label = textLabel(parent, 1.0, true);
    label->setText(localized(key));
    return label;
}

std::optional<LocationResult> placeIn(const UserDefaults& settings) {
    const auto dictionary = settings.dictionary(locationKey);
    return dictionary ? std::optional(LocationResult(*dictionary)) : std::nullopt;
}

}  // namespace

SettingsWindow::SettingsWindow()
    : settings_(openSharedSettings()),
      panelSettings_(openPanelSettings()),
      scroll_(new QScrollArea(this)),
      search_(new PlaceSearch(this)),
      place_(new PlaceCard(this)),
      units_(new UnitsForm(*settings_, this)),
      symbols_(new SymbolChoice(*panelSettings_, this)),
      state_(textLabel(this, 1.0, false)),
      source_(textLabel(this, 0.9, false)),
      login_(new QCheckBox(localized(u"Show the panel at login"), this)) {
    setWindowTitle(QStringLiteral("Zephyrix"));
    auto* const content = new QWidget(this);
    content->setMinimumWidth(leastWidth);
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(6);
    addPlace(column);
    addChoices(column);
    addWeather(column);
    scrollContent(content);
    showStored();
    for (UserDefaults* store : {settings_.get(), panelSettings_.get()})
        connect(store, &UserDefaults::changedByOthers, this, &SettingsWindow::showStored);
    connect(&minute_, &QTimer::timeout, this, &SettingsWindow::showNow);
    search_->setFocus();
    resize(sizeOnScreen());
}

void SettingsWindow::scrollContent(QWidget* content) {
    scroll_->setWidget(content);
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setFocusPolicy(Qt::NoFocus);  // it follows the focus of its controls
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll_);
}

QSize SettingsWindow::wholeSize() const {
    const QLayout* const column = scroll_->widget()->layout();
    const int width = std::max(usualWidth, column->totalSizeHint().width());
    return {width, column->totalHeightForWidth(width)};
}

QSize SettingsWindow::sizeOnScreen() const {
    const QSize whole = wholeSize();
    const QSize room = screen()->availableSize() - desktopsFrame;
    const int bar =
        whole.height() > room.height() ? scroll_->verticalScrollBar()->sizeHint().width() : 0;
    return (whole + QSize(bar, 0)).boundedTo(room);
}

void SettingsWindow::addPlace(QVBoxLayout* column) {
    auto* const area = new QWidget(this);
    auto* const stacked = new QVBoxLayout(area);
    stacked->setContentsMargins(0, 0, 0, 0);
    stacked->addWidget(search_);
    stacked->addWidget(place_, 1);
    area->setMinimumHeight(placeHeight);
    column->addWidget(area, 1);
    connect(search_, &PlaceSearch::activeChanged, place_, &QWidget::setHidden);
    connect(search_, &PlaceSearch::chosen, this, &SettingsWindow::takePlace);
}

void SettingsWindow::addChoices(QVBoxLayout* column) {
    column->addSpacing(sectionSpacing);
    column->addWidget(heading(this, u"Units"));
    column->addWidget(units_);
    column->addSpacing(sectionSpacing);
    column->addWidget(heading(this, u"Symbols"));
    column->addWidget(symbols_);
    connect(units_, &UnitsForm::changed, this, [this] { keep(*settings_); });
    connect(symbols_, &SymbolChoice::changed, this, [this] {
        QKWeatherSymbols::clearCache();  // before the panel looks for the others
        keep(*panelSettings_);
    });
}

void SettingsWindow::addWeather(QVBoxLayout* column) {
    column->addSpacing(sectionSpacing);
    column->addWidget(heading(this, u"Weather"));
    state_->setObjectName(QStringLiteral("state"));
    source_->setObjectName(QStringLiteral("source"));
    column->addWidget(state_);
    column->addWidget(source_);
    column->addSpacing(sectionSpacing);
    login_->setObjectName(QStringLiteral("login"));
    column->addWidget(login_);
    connect(login_, &QCheckBox::clicked, this, &SettingsWindow::takeLogin);
}

void SettingsWindow::takePlace(const ListedPlace& place) {
    settings_->set(locationKey, locationOf(place).asDict());
    keep(*settings_);
}

void SettingsWindow::takeLogin(bool on) {
    try {
        LoginEntry::set(on);
    } catch (const CommandError& error) {
        logLine(error.text());
        login_->setChecked(LoginEntry::isOn());
    }
}

void SettingsWindow::keep(UserDefaults& store) {
    try {
        save(store);
    } catch (const CommandError& error) {
        logLine(error.text());
    }
    showStored();
}

void SettingsWindow::showStored() {
    const auto document = panelSettings_->dictionary(QStringLiteral("lastWeatherData"));
    place_->setPlace(placeIn(*settings_));
    units_->showStored(document.value_or(QVariantMap()).value(QStringLiteral("obs")).toMap());
    symbols_->showStored();
    login_->setChecked(LoginEntry::isOn());
    showNow();
}

void SettingsWindow::showNow() {
    const int before = wholeSize().height();
    place_->showNow();
    const auto place = placeIn(*settings_);
    const FeedState feed = feedState(panelSettings_->dictionary(QStringLiteral("lastWeatherData")),
                                     place ? place->uid() : std::nullopt, Clock::now());
    state_->setText(feed.state);
    QStringList sources;
    if (!feed.source.isEmpty())
        sources << feed.source;
    if (!feed.licence.isEmpty())
        sources << feed.licence;
    sources << localized(u"Places: %1").arg(placesAttribution);
    source_->setText(sources.join(QLatin1Char('\n')));
    if (wholeSize().height() > before)
        resize(size().expandedTo(sizeOnScreen()));
}

void SettingsWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void SettingsWindow::showEvent(QShowEvent* event) {
    showNow();
    minute_.start(everyMinute);
    QWidget::showEvent(event);
}

void SettingsWindow::hideEvent(QHideEvent* event) {
    minute_.stop();
    QWidget::hideEvent(event);
}

}  // namespace zephyrix
