#pragma once

#include <memory>

#include <QMarginsF>
#include <QObject>
#include <QPointer>
#include <QSizeF>
#include <QString>

#include "IndexPath.h"
#include "TableView.h"

namespace zephyrix {

/// Owns a table, loads it from its layout at first use, and answers what the table asks. Main
/// thread.
///
///     class DaysController : public TableViewController { ... };
///     DaysController controller(QStringLiteral("DaysController"));   // DaysController.ui
///     window.setCentralWidget(controller.tableView());               // loads: viewDidLoad()
///     controller.viewWillAppear(false);
class TableViewController : public QObject {
    Q_OBJECT

  public:
    explicit TableViewController(QString layoutName);
    ~TableViewController() override;

    /// The view; loads it at the first call: the layout, then connectOutlets(), then viewDidLoad().
    /// A layout that is missing or whose root is no TableView stops the process.
    [[nodiscard]] TableView* tableView();
    [[nodiscard]] bool isViewLoaded() const { return !tableView_.isNull(); }

    virtual void connectOutlets() {}
    virtual void viewDidLoad() {}
    /// Called by the host before the view is shown, and before it is hidden.
    virtual void viewWillAppear(bool animated);
    virtual void viewWillDisappear(bool animated);
    virtual void didReceiveMemoryWarning() {}

    [[nodiscard]] virtual int numberOfRowsInSection(int section) = 0;
    /// Must come from the table's dequeueReusableCell().
    [[nodiscard]] virtual TableCell* cellForRowAtIndexPath(const IndexPath& path) = 0;
    [[nodiscard]] virtual double heightForRowAtIndexPath(const IndexPath& path) = 0;  // points
    virtual void willDisplayCell(TableCell* cell, const IndexPath& path);
    /// A row was chosen, by mouse or by keyboard; it stays selected until someone deselects it.
    virtual void didSelectRowAtIndexPath(const IndexPath& path);

    /// In points; the host gives the view this height, and its own width.
    [[nodiscard]] const QSizeF& preferredContentSize() const noexcept { return preferredSize_; }
    void setPreferredContentSize(const QSizeF& size);
    /// The margins that the panel wants, from those that the host proposes.
    [[nodiscard]] virtual QMarginsF widgetMarginInsetsForProposedMarginInsets(
        const QMarginsF& proposed);

  Q_SIGNALS:
    void preferredContentSizeChanged(const QSizeF& size);

  private:
    QString layoutName_;
    QPointer<TableView> tableView_;
    QSizeF preferredSize_{0.0, 0.0};
};

}  // namespace zephyrix
