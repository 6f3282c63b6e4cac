#include <memory>

#include <QDir>
#include <gtest/gtest.h>

#include "Stage.h"
#include "foundation/Clock.h"
#include "support/ScopedEnvironment.h"
#include "ui/Motion.h"
#include "ui/Theme.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

TEST(Layouts, EveryShippedOneLoads) {
    Stage stage(showerInBerlin(), 375, 1.0);  // makes the cells known
    const QStringList files = QDir(QStringLiteral(":/zephyrix/layouts")).entryList();
    EXPECT_EQ(files.size(), QDir(QStringLiteral(SOURCE_DIR "/resources/layouts"))
                                .entryList({QStringLiteral("*.ui")})
                                .size());
    for (const QString& file : files) {
        const QString name = file.chopped(3);
        const std::unique_ptr<QWidget> root(Nib(name).instantiate());
        ASSERT_TRUE(root) << qPrintable(file);
        EXPECT_EQ(root->objectName(), name);
    }
}

TEST(Layouts, RegisterEveryKindOfRow) {
    Stage stage(showerInBerlin(), 375, 1.0);
    for (const char* identifier :
         {"obsCell", "overviewCell", "forecastCell", "precCell", "messageCell"}) {
        const QString name = QString::fromLatin1(identifier);
        ASSERT_TRUE(stage.tableView()->isRegistered(name)) << identifier;
        EXPECT_NE(stage.tableView()->dequeueReusableCell(name, {}), nullptr);
    }
    const TableCell* message =
        stage.tableView()->dequeueReusableCell(QStringLiteral("messageCell"), {});
    EXPECT_NE(message->textLabel(), nullptr);
    EXPECT_EQ(stage.tableView()->footerView()->sizeHint().height(), 36);
}

// Nothing of a layout shows before there is something to show.
TEST(Layouts, AnObservationRowWithoutObservationIsBlank) {
    Stage stage(showerInBerlin(), 375, 1.0);
    const TableCell* cell = stage.tableView()->dequeueReusableCell(QStringLiteral("obsCell"), {});
    for (const Label* label : cell->findChildren<Label*>())
        EXPECT_EQ(label->text(), QString()) << qPrintable(label->objectName());
    for (const ImageView* view : cell->findChildren<ImageView*>())
        EXPECT_TRUE(view->image().isNull() && (view->imageName().isEmpty() || view->isHidden()));
}

QRect placeIn(const QWidget* cell, const QWidget* view) {
    return {view->mapTo(cell, QPoint()), view->size()};
}

/// Ring, arrow and speed lie on each other by design.
bool belongsToTheRing(const QWidget* view) {
    const QString name = view->objectName();
    return name == QLatin1String("windBg") || name == QLatin1String("windPfeil") ||
           name == QLatin1String("windSpeedLabel");
}

void expectNothingOverlaps(const QWidget* cell, const std::string& where) {
    QList<QWidget*> views;
    for (QWidget* view : cell->findChildren<QWidget*>())
        if ((qobject_cast<Label*>(view) != nullptr || qobject_cast<ImageView*>(view) != nullptr) &&
            !view->isHidden())
            views << view;
    for (qsizetype i = 0; i < views.size(); ++i) {
        const QRect place = placeIn(cell, views.at(i));
        const std::string name = qPrintable(views.at(i)->objectName()) + (" " + where);
        EXPECT_TRUE(cell->rect().contains(place)) << name;
        for (qsizetype j = i + 1; j < views.size(); ++j)
            EXPECT_TRUE(!place.intersects(placeIn(cell, views.at(j))) ||
                        (belongsToTheRing(views.at(i)) && belongsToTheRing(views.at(j))))
                << name << " and " << qPrintable(views.at(j)->objectName());
    }
}

struct TextCase {
    const char* locale;
    const char* place;
};

void expectGoodLayout(const Weather& weather, int width, const char* locale) {
    Stage stage(weather, width, 1.0);
    stage.layOut();
    stage.toggle();
    stage.layOut();
    const std::string where = std::string(locale) + " at " + std::to_string(width) +
                              " with texts x " + std::to_string(Theme::textScale());
    expectNothingOverlaps(stage.obsCell(), where);
    expectNothingOverlaps(stage.forecastCell(), where);
    // Numbers are never elided; words and names may be.
    QList<const Label*> numbers{stage.obsCell()->detailLabel1(), stage.obsCell()->rrr(),
                                stage.obsCell()->ppp(), stage.obsCell()->dateLabel()};
    const auto days = stage.forecastCell()->findChildren<ForecastDayView*>();
    EXPECT_EQ(days.size(), width > 414 ? 5 : width > 375 ? 4 : 3) << where;
    for (const auto* day : days)
        numbers << day->tx() << day->tn();
    for (const Label* label : numbers)
        EXPECT_FALSE(label->isTruncated()) << where << " " << qPrintable(label->objectName());
}

TEST(Layouts, NothingOverlapsOrIsCutAtAnyWidth) {
    const ReplacedClock clock([] { return Instant::fromSecondsSince1970(1433174400.0); });
    const ScopedEnvironment language{{"LANG", "en_US.UTF-8"}};
    Weather weather = showerInBerlin();
    weather.observation[QStringLiteral("tt")] = -17.6;
    weather.observation[QStringLiteral("ff")] = 64;
    weather.observation[QStringLiteral("rrr")] = 112.4;
    weather.observation[QStringLiteral("rrrh")] = 12;
    for (const auto& [locale, place] :
         {TextCase{"de_DE.UTF-8", "Llanfairpwllgwyngyll in der Lausitz"},
          TextCase{"fr_FR.UTF-8", "Saint-Remy-en-Bouzemont-Saint-Genest-et-Isson"},
          TextCase{"ru_RU.UTF-8", "Петропавловск-Камчатский"}}) {
        useLanguage(locale);
        weather.place[QStringLiteral("name")] = QString::fromUtf8(place);
        for (int width = 320; width <= 600; width += 20)
            expectGoodLayout(weather, width, locale);
        for (const double textScale : {0.9, 1.15, 1.25, 1.33, 1.5, 1.7, 2.0}) {
            const TextSize size(textScale);
            for (int width = 320; width <= 600; width += 40)
                expectGoodLayout(weather, width, locale);
        }
    }
    useLanguage("en_US.UTF-8");
}

// The panel is the same at any size of texts, only bigger.
TEST(Layouts, GrowWithTheDesktopsTexts) {
    Stage usual(showerInBerlin(), 400, 1.0);
    usual.layOut();
    usual.layOut();
    const QSize symbol = usual.obsCell()->symbol()->size();
    const TextSize twice(2.0);
    Stage stage(showerInBerlin(), 400, 1.0);
    stage.layOut();
    stage.layOut();  // the first one brings the surface to its width
    EXPECT_EQ(stage.obsCell()->size(), QSize(800, 220));
    EXPECT_EQ(stage.obsCell()->symbol()->size(), symbol * 2);
    EXPECT_EQ(stage.tableView()->footerView()->height(), 72);
    EXPECT_EQ(Theme::font(Theme::TextStyle::Title).pixelSize(), 30);
    const TextSize huge(5.0);
    EXPECT_EQ(Theme::textScale(), 2.0);
}

TEST(Layouts, RunFromRightToLeftWhereTheScriptDoes) {
    Stage stage(showerInBerlin(), 375, 1.0);
    stage.tableView()->setLayoutDirection(Qt::RightToLeft);
    stage.layOut();
    stage.toggle();
    stage.layOut();
    const ObsCell* cell = stage.obsCell();
    EXPECT_GT(placeIn(cell, cell->symbol()).left(), placeIn(cell, cell->titleLabel()).right());
    expectNothingOverlaps(cell, "right to left");
}

}  // namespace
}  // namespace zephyrix
