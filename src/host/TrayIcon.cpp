#include "TrayIcon.h"

#include <QApplication>

#include "RowReport.h"
#include "foundation/Localized.h"
#include "symbols/QKCompoundSymbol.h"

namespace zephyrix {

namespace {

const QString program = QStringLiteral("Zephyrix");
constexpr QSizeF symbolSize(64.0, 64.0);    // points; trays make it smaller
constexpr long long fairWeather = 1200000;  // sun and some clouds, before any weather is known

}  // namespace

TrayIcon::TrayIcon() {
    menu_.addAction(program, this, &TrayIcon::showWanted);
    menu_.addSeparator();
    menu_.addAction(localized(u"Quit"), qApp, &QApplication::quit);
    icon_.setContextMenu(&menu_);
    connect(&icon_, &QSystemTrayIcon::activated, this, [this](auto reason) {
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
            Q_EMIT clicked();
    });
}

void TrayIcon::showWeather(TodayViewController& controller) {
    const auto& document = controller.lastWeatherData();
    // A symbol of nothing would be an icon that nobody finds.
    const bool known = document && document->obs && document->obs->symbol &&
                       document->obs->symbol->integerValue() > 0;
    // Not the controller's own, as a symbol may leave its mark on the next.
    QKCompoundSymbol symbols;
    const QImage picture =
        known ? symbols.symbolForCode(*document->obs->symbol, symbolSize, document->obs->date)
              : symbols.symbolForCode(Number(fairWeather), symbolSize);
    icon_.setIcon(QIcon(QPixmap::fromImage(picture)));
    controller.tableView()->layoutIfNeeded();
    const TableCell* const row = controller.tableView()->cellForRow({0, 0});
    const QString spoken = row == nullptr ? QString() : row->spokenText();
    const QString licence = RowReport::licence(controller);
    icon_.setToolTip(spoken.isEmpty()    ? program
                     : licence.isEmpty() ? spoken
                                         : QStringLiteral("%1\n%2").arg(spoken, licence));
    icon_.show();
}

}  // namespace zephyrix
