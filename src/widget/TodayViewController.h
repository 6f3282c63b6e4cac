#pragma once

#include <memory>
#include <optional>

#include <QLatin1String>
#include <QPointer>

#include "ExtensionContext.h"
#include "WeatherFeed.h"
#include "foundation/OperationQueue.h"
#include "foundation/UserDefaults.h"
#include "model/LocationResult.h"
#include "symbols/QKCompoundSymbol.h"
#include "ui/TableViewController.h"
#include "ui/TextButton.h"

namespace zephyrix {

/// The panel's controller: the place, the cached document, when a new one is fetched, and the table
/// of one or two rows. Everything here runs on the main thread; only an answer's JSON is read on
/// `queue`.
///
/// A host makes it, puts tableView() into a window (which loads the view: viewDidLoad()), and calls
/// viewWillAppear() whenever the panel comes into sight and viewWillDisappear() when it goes.
///
/// Strict on purpose, the process stops with a line: a cached document without observation; one
/// with a valid observation, when it or the stored place has no uid; a layout whose rows are not
/// what they are called.
class TodayViewController : public TableViewController {
    Q_OBJECT

  public:
    using WeatherData = zephyrix::WeatherData;

    struct Constants {
        static constexpr double maxUpdateInterval = 600.0;  // seconds
        static constexpr bool debug = false;                // nothing depends on it
    };

    struct TableViewConstants {
        struct CellIdentifiers {
            static constexpr QLatin1String obsCell{"obsCell"};
            static constexpr QLatin1String overviewCell{"overviewCell"};  // no row uses it
            static constexpr QLatin1String forecastCell{"forecastCell"};
            static constexpr QLatin1String precCell{"precCell"};  // no row uses it
            static constexpr QLatin1String message{"messageCell"};
        };
        // Heights in points. The forecast row has the overview's height on purpose: the layout was
        // measured against it.
        static constexpr double obsRowHeight = 110.0;
        static constexpr double overviewRowHeight = 104.0;
        static constexpr double forecastRowHeight = 110.0;  // no row uses it
        static constexpr double precRowHeight = 120.0;      // no row uses it
        static constexpr double messageRowHeight = 30.0;
    };

    /// The only way to make one is with its layout, "TodayViewController", and a feed.
    explicit TodayViewController(WeatherFeed::BaseAddress feed, const FeedLimits& limits = {});
    ~TodayViewController() override;

    void connectOutlets() override;
    void viewDidLoad() override;
    /// Fetches unless the document is younger than 600 seconds. What is shown stays until the new
    /// document is there; after an error it stays for good.
    void viewWillAppear(bool animated) override;
    void viewWillDisappear(bool animated) override;
    void didReceiveMemoryWarning() override;

    [[nodiscard]] int numberOfRowsInSection(int section) override;
    [[nodiscard]] TableCell* cellForRowAtIndexPath(const IndexPath& path) override;
    [[nodiscard]] double heightForRowAtIndexPath(const IndexPath& path) override;
    void willDisplayCell(TableCell* cell, const IndexPath& path) override;
    /// Any row: deselects it and opens "zephyrix://widget".
    void didSelectRowAtIndexPath(const IndexPath& path) override;
    /// The proposed top and right; the rows lie flush with the left edge, the footer with the
    /// bottom.
    [[nodiscard]] QMarginsF widgetMarginInsetsForProposedMarginInsets(
        const QMarginsF& proposed) override;

    /// Expands or collapses.
    void didPressButton(QAbstractButton* button);
    /// Points of the panel: the first row, the button where there is one, and the second row when
    /// expanded.
    [[nodiscard]] double preferredViewHeight() const;
    void resetContentSize();

    /// One request for the place's document; see WeatherFeed::fetch().
    void fetchWeatherDataForLocationID(const Number& locationID,
                                       WeatherFeed::Completion completion);

    [[nodiscard]] TextButton* moreButton() const { return moreButton_; }
    [[nodiscard]] bool showingAll() const noexcept { return showingAll_; }
    void setShowingAll(bool showingAll);
    [[nodiscard]] OperationQueue& queue() noexcept { return queue_; }
    [[nodiscard]] QKCompoundSymbol& cs() noexcept { return cs_; }
    [[nodiscard]] UserDefaults& sharedDefaults() const { return *sharedDefaults_; }
    [[nodiscard]] UserDefaults& localDefaults() const { return localDefaults_; }
    [[nodiscard]] const std::optional<WeatherData>& lastWeatherData() const {
        return lastWeatherData_;
    }
    void setLastWeatherData(std::optional<WeatherData> document);
    [[nodiscard]] const std::optional<LocationResult>& location() const { return location_; }

    /// Not owned; rows open nothing without one.
    void setExtensionContext(ExtensionContext* context) { extensionContext_ = context; }
    [[nodiscard]] ExtensionContext* extensionContext() const { return extensionContext_; }

    /// Whether a fetch that viewWillAppear() started is under way.
    [[nodiscard]] bool isRefreshing() const noexcept { return refreshes_ > 0; }

  Q_SIGNALS:
    /// A fetch that viewWillAppear() started has ended, and its document is in force if it has one.
    void refreshed(bool succeeded);

  private:
    void restoreCachedDocument();
    void completeRefresh(const std::optional<WeatherData>& document,
                         const std::optional<FeedError>& error);
    [[nodiscard]] TableCell* firstRow(const IndexPath& path);
    [[nodiscard]] TableCell* waitingRow(const IndexPath& path);
    [[nodiscard]] TableCell* messageRow(const IndexPath& path, const QString& message);
    template <class Cell, class Data>
    [[nodiscard]] TableCell* weatherRow(QLatin1String identifier, const IndexPath& path,
                                        const Data& data);

    // In the order in which they come to life.
    QPointer<TextButton> moreButton_;  // of the table's footer; null without a place
    bool showingAll_ = false;
    OperationQueue queue_;
    QKCompoundSymbol cs_;
    UserDefaults& localDefaults_;
    std::optional<WeatherData> lastWeatherData_;
    std::optional<LocationResult> location_;
    std::unique_ptr<UserDefaults> suite_;  // null when the group's store cannot be opened
    UserDefaults* sharedDefaults_;
    WeatherFeed feed_;
    ExtensionContext* extensionContext_ = nullptr;
    int refreshes_ = 0;
};

}  // namespace zephyrix
