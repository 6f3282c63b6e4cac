#pragma once

#include <QMarginsF>
#include <QPointer>

#include "Label.h"
#include "Nib.h"
#include "View.h"

namespace zephyrix {

/// One row of a TableView, owned by the table and used again for other rows of its identifier.
///
/// Layout happens in passes: whoever changes something calls setNeedsLayout(), and before the next
/// paint layoutSubviews() is called once, however often that was. A change of size asks for a pass
/// by itself.
class TableCell : public View, public NibObject {
    Q_OBJECT

  public:
    explicit TableCell(QWidget* parent = nullptr);

    [[nodiscard]] const QString& reuseIdentifier() const noexcept { return reuseIdentifier_; }
    void setReuseIdentifier(const QString& identifier) { reuseIdentifier_ = identifier; }

    /// The label named "textLabel" of the layout; null where it has none.
    [[nodiscard]] Label* textLabel() const { return textLabel_; }
    void connectOutlets() override;

    void setNeedsLayout();
    /// The pass now, if one is due.
    void layoutIfNeeded();
    /// Brings the views that the layout description arranges into place. Overriders call this
    /// first.
    virtual void layoutSubviews();

    /// Pressed, and chosen: either shows the selected background; ends at once or by fading.
    virtual void setHighlighted(bool highlighted, bool animated);
    virtual void setSelected(bool selected, bool animated);
    [[nodiscard]] bool isHighlighted() const noexcept { return highlighted_; }
    [[nodiscard]] bool isSelected() const noexcept { return selected_; }
    /// Whether it has the focus and shows it.
    [[nodiscard]] bool showsFocus() const { return showsFocus_ && hasFocus(); }

    /// The cell takes it over, lies it below everything else and hides it until it is needed.
    void setSelectedBackgroundView(QWidget* view);
    [[nodiscard]] QWidget* selectedBackgroundView() const { return selectedBackground_; }

    /// How far the line below the row keeps away from the row's sides, in points; left means the
    /// leading side.
    [[nodiscard]] const QMarginsF& separatorInset() const noexcept { return separatorInset_; }
    void setSeparatorInset(const QMarginsF& inset) { separatorInset_ = inset; }

    /// What a screen reader says for the whole row: the text label's text unless given.
    [[nodiscard]] virtual QString spokenText() const;
    void setSpokenText(const QString& text) { givenSpokenText_ = text; }

  protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void showSelectedBackground(bool animated);

    QString reuseIdentifier_;
    QString givenSpokenText_;  // empty for none
    QPointer<Label> textLabel_;
    QPointer<QWidget> selectedBackground_;
    QMarginsF separatorInset_;
    bool needsLayout_ = false;
    bool highlighted_ = false;
    bool selected_ = false;
    bool showsFocus_ = false;
};

}  // namespace zephyrix
