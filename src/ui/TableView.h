#pragma once

#include <vector>

#include <QHash>
#include <QPointer>
#include <QStringList>
#include <QVariantAnimation>

#include "IndexPath.h"
#include "Nib.h"
#include "TableCell.h"
#include "View.h"

namespace zephyrix {

class TableViewController;

/// A table of one section: rows below each other, each as high as the controller says (in points
/// of the panel), a line between them, and a footer. It asks its controller for everything and
/// keeps the cells for use again.
///
/// Reloading is lazy: reloadData() only remembers; the controller is asked for its rows in the next
/// layout pass (before the next paint, or at layoutIfNeeded()).
///
/// By mouse a row is pressed and chosen; by keyboard Return chooses the row that has the focus, the
/// arrow keys move the focus, and Space emits toggleRequested().
class TableView : public View, public NibObject {
    Q_OBJECT
    /// The row layouts: each "reuse identifier: layout name".
    Q_PROPERTY(QStringList prototypes READ prototypes WRITE setPrototypes)

  public:
    enum class RowAnimation : int { Fade = 0, None = 5 };

    explicit TableView(QWidget* parent = nullptr);

    void setController(TableViewController* controller);

    [[nodiscard]] const QStringList& prototypes() const noexcept { return prototypes_; }
    void setPrototypes(const QStringList& prototypes);
    void registerNib(const QString& identifier, const Nib& nib);
    [[nodiscard]] bool isRegistered(const QString& identifier) const;

    /// A cell that is not on display, or a new one. An identifier that is not registered stops the
    /// process.
    [[nodiscard]] TableCell* dequeueReusableCell(const QString& identifier, const IndexPath& path);

    void reloadData();
    /// After the data has changed. While a reload is due they do nothing, because it will find the
    /// row; otherwise the data must have exactly one row more, or less, or the process stops.
    void insertRow(const IndexPath& path, RowAnimation animation);
    void deleteRow(const IndexPath& path, RowAnimation animation);

    /// As Return does with the row that has the focus. Nothing for a cell that is not on display.
    void chooseCell(TableCell* cell);
    void deselectRow(const IndexPath& path, bool animated);
    /// Null for a row that is not on display.
    [[nodiscard]] TableCell* cellForRow(const IndexPath& path) const;

    /// The view named "footerView" of the layout. Null removes and deletes it.
    [[nodiscard]] QWidget* footerView() const { return footer_; }
    void setFooterView(QWidget* footer);
    void connectOutlets() override;

    /// Points of the screen. While a row fades in or out it moves to its new value;
    /// contentHeightChanged() tells each step, so that a window can follow.
    [[nodiscard]] double contentHeight() const noexcept { return contentHeight_; }
    /// All due passes now, its own and those of its cells.
    void layoutIfNeeded();

    [[nodiscard]] QSize sizeHint() const override;

  Q_SIGNALS:
    void contentHeightChanged(double height);
    void toggleRequested();

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void scheduleLayout();
    void reloadRows();
    [[nodiscard]] TableCell* displayedCell(int row);
    void recycle(TableCell* cell);
    void requireRowCount() const;
    void placeRows();
    void setContentHeight(double height);
    void moveToContentHeight(bool animated);
    [[nodiscard]] double rowHeight(int row) const;
    [[nodiscard]] double rowsHeight() const;
    [[nodiscard]] double footerHeight() const;
    [[nodiscard]] int rowAt(const QPointF& position) const;
    [[nodiscard]] int rowWithFocus() const;
    void chooseRow(int row);
    void updateTabOrder();
    void paintSeparators();

    TableViewController* controller_ = nullptr;
    QStringList prototypes_;
    QHash<QString, Nib> nibs_;
    std::vector<TableCell*> rows_;
    std::vector<TableCell*> spare_;
    QWidget* rowArea_;  // cuts off the rows that slide below the footer
    QPointer<QWidget> footer_;
    QVariantAnimation heightAnimation_;
    double contentHeight_ = 0.0;
    int pressedRow_ = -1;
    int placedWidth_ = -1;  // points; for which the rows were placed
    bool needsReload_ = false;
    bool layoutPosted_ = false;
};

}  // namespace zephyrix
