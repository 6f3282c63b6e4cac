#include "PlaceSearch.h"

#include <cmath>
#include <optional>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QVBoxLayout>

#include "foundation/Localized.h"
#include "places/CoordinateUid.h"

namespace zephyrix {

namespace {

constexpr std::size_t mostShown = 20;
constexpr int hintAlpha = 170;  // of 255, of the text's colour; the toolkit's half is hard to read

/// Coordinates in a text: two numbers, latitude first, with a comma or blanks between them.
std::optional<Coordinate> coordinatesIn(const QString& text) {
    static const QRegularExpression form(
        QStringLiteral(R"(^\s*([-+]?\d{1,2}(?:\.\d+)?)\s*[,;\s]\s*([-+]?\d{1,3}(?:\.\d+)?)\s*$)"));
    const auto match = form.match(text);
    const Coordinate where{.latitude = match.captured(1).toDouble(),
                           .longitude = match.captured(2).toDouble()};
    const bool isOnEarth = std::fabs(where.latitude) <= 90.0 && std::fabs(where.longitude) <= 180.0;
    const bool isNone = where.latitude == 0.0 && where.longitude == 0.0;
    return match.hasMatch() && isOnEarth && !isNone ? std::optional(where) : std::nullopt;
}

}  // namespace

PlaceSearch::PlaceSearch(QWidget* parent)
    : QWidget(parent),
      list_(Bundle::main().preferredLocalizations().first()),
      field_(new QLineEdit(this)),
      results_(new QListWidget(this)) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(field_);
    column->addWidget(results_, 1);
    setFocusProxy(field_);
    field_->setObjectName(QStringLiteral("search"));
    field_->setPlaceholderText(localized(u"Search for a place"));
    field_->setAccessibleName(localized(u"Search for a place"));
    field_->setClearButtonEnabled(true);
    colourHint();
    field_->installEventFilter(this);
    results_->setObjectName(QStringLiteral("results"));
    results_->setAccessibleName(localized(u"Places found"));
    results_->setTextElideMode(Qt::ElideRight);
    results_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    results_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);  // in the card's place
    results_->hide();
    connect(field_, &QLineEdit::textChanged, this, &PlaceSearch::lookFor);
    connect(field_, &QLineEdit::returnPressed, this, [this] { take(results_->currentRow()); });
    connect(results_, &QListWidget::itemClicked, this, [this] { take(results_->currentRow()); });
    connect(results_, &QListWidget::itemActivated, this, [this] { take(results_->currentRow()); });
}

void PlaceSearch::colourHint() {
    QColor color = palette().color(QPalette::Text);
    color.setAlpha(hintAlpha);
    QPalette hint;
    hint.setColor(QPalette::PlaceholderText, color);
    field_->setPalette(hint);
}

void PlaceSearch::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colourHint();
}

bool PlaceSearch::isActive() const {
    return !field_->text().trimmed().isEmpty();
}

bool PlaceSearch::eventFilter(QObject* watched, QEvent* event) {
    if (watched != field_ || event->type() != QEvent::KeyPress || !isActive())
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
            field_->clear();
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(results_, event);
            return true;
        default:
            return QWidget::eventFilter(watched, event);
    }
}

void PlaceSearch::lookFor(const QString& text) {
    if (const auto where = coordinatesIn(text))
        show({{.uid = uidOfCoordinate(*where),
               .name = text.simplified(),
               .coordinate = *where,
               .zone = list_.zoneAt(*where),
               .countryCode = {},
               .country = {},
               .province = {},
               .inhabitants = 0}});
    else
        show(list_.search(text, mostShown));
    results_->setVisible(isActive());
    Q_EMIT activeChanged(isActive());
}

void PlaceSearch::show(const std::vector<ListedPlace>& found) {
    found_ = found;
    results_->clear();
    for (const ListedPlace& place : found_) {
        const QString area = areaOf(place);
        results_->addItem(area.isEmpty() ? place.name
                                         : QStringLiteral("%1  ·  %2").arg(place.name, area));
    }
    if (found_.empty()) {
        auto* const none = new QListWidgetItem(localized(u"No place of this name"), results_);
        none->setFlags(Qt::NoItemFlags);
    } else {
        results_->setCurrentRow(0);
    }
}

void PlaceSearch::take(int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= found_.size())
        return;
    const ListedPlace place = found_[static_cast<std::size_t>(row)];
    found_.clear();
    field_->clear();
    Q_EMIT chosen(place);
}

}  // namespace zephyrix
