#pragma once

#include <vector>

#include <QLineEdit>
#include <QListWidget>
#include <QWidget>

#include "places/PlaceList.h"

namespace zephyrix {

/// A field in which one types a place's name, and the places that are meant. The arrows go through
/// them while the field keeps the keyboard; Return takes the marked one, Escape empties the field.
/// Coordinates ("69.65, 18.96") are a place, too.
class PlaceSearch : public QWidget {
    Q_OBJECT

  public:
    explicit PlaceSearch(QWidget* parent = nullptr);

    /// Whether something is typed, so that the list shows.
    [[nodiscard]] bool isActive() const;

  Q_SIGNALS:
    void chosen(const zephyrix::ListedPlace& place);
    void activeChanged(bool isActive);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void colourHint();
    void lookFor(const QString& text);
    void show(const std::vector<ListedPlace>& found);
    void take(int row);

    PlaceList list_;
    QLineEdit* field_;
    QListWidget* results_;
    std::vector<ListedPlace> found_;  // what the rows of results_ are
};

}  // namespace zephyrix
