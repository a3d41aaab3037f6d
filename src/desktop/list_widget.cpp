// The toolkit's list, over the entries of a list box.
#include "desktop/text.h"
#include "desktop/widgets.h"

#include <QAbstractListModel>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QListView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <optional>
#include <utility>

namespace tessarine
{
namespace
{

/// Shows the entries where they are, without a copy.
class Entries final : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    void Show(const TextList* entries)
    {
        beginResetModel();
        entries_ = entries;
        count_ = entries == nullptr ? 0 : static_cast<int>(entries->Count());
        endResetModel();
    }
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count_; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        const auto row = static_cast<std::size_t>(index.row());
        const bool isText = role == Qt::DisplayRole || role == Qt::EditRole ||
                            role == Qt::ToolTipRole; // a long name is cut off
        // The list may have become shorter since it was counted.
        return isText && entries_ != nullptr && row < entries_->Count() ? ToText(entries_->At(row))
                                                                        : QVariant();
    }
    /// The list says what begins with a text that is typed. The same letter once more means the next one
    /// that begins with it.
    QModelIndexList match(const QModelIndex& start, int /*role*/, const QVariant& text, int /*hits*/,
                          Qt::MatchFlags /*flags*/) const override
    {
        const auto from = static_cast<std::size_t>(start.row());
        const QString typed = text.toString();
        auto row = entries_->Find(ToBytes(typed), from);
        if (!row && typed.count(typed.front()) == typed.size()) {
            row = entries_->Find(ToBytes(typed.left(1)), from);
        }
        return row ? QModelIndexList{index(static_cast<int>(*row))} : QModelIndexList();
    }

private:
    const TextList* entries_ = nullptr;
    int count_ = 0;
};

/// The row that shows as chosen: the one that the list box says. What the toolkit would like to choose
/// is noted, and nothing comes of it by itself.
class ChosenRow final : public QItemSelectionModel
{
public:
    using QItemSelectionModel::QItemSelectionModel;

    void Show(const QModelIndex& row)
    {
        const QScopedValueRollback showing(showing_, true);
        if (row.isValid()) {
            QItemSelectionModel::setCurrentIndex(row, ClearAndSelect);
        } else {
            QItemSelectionModel::clear();
        }
    }
    /// Where the toolkit has wanted to go since the last call.
    QModelIndex TakeWish() { return std::exchange(wish_, QModelIndex()); }

    void setCurrentIndex(const QModelIndex& row, SelectionFlags command) override
    {
        if (showing_) {
            QItemSelectionModel::setCurrentIndex(row, command);
        } else {
            wish_ = row;
        }
    }
    void select(const QModelIndex& row, SelectionFlags command) override
    {
        select(QItemSelection(row, row), command);
    }
    void select(const QItemSelection& rows, SelectionFlags command) override
    {
        if (showing_) {
            QItemSelectionModel::select(rows, command);
        }
    }
    void clear() override
    {
        if (showing_) {
            QItemSelectionModel::clear();
        }
    }
    void clearCurrentIndex() override
    {
        if (showing_) {
            QItemSelectionModel::clearCurrentIndex();
        }
    }
    void reset() override // the rows are others
    {
        const QScopedValueRollback showing(showing_, true);
        QItemSelectionModel::reset();
    }

private:
    QModelIndex wish_;
    bool showing_ = false;
};

class ListWidget final : public QListView, public NativePeer
{
public:
    ListWidget(ListBox& list, QWidget& parent, Desk& desk)
        : QListView(&parent), NativePeer(*this, list, desk)
    {
        setModel(&entries_);
        const QItemSelectionModel* const own = selectionModel();
        setSelectionModel(chosen_);
        delete own;
        setSelectionMode(SingleSelection);
        setEditTriggers(NoEditTriggers);
        setUniformItemSizes(true);
        setVerticalScrollMode(ScrollPerItem);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        QObject::connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
                         [this](int) { NoteTop(); });
    }

protected:
    void RefreshValue() override
    {
        const TextList& items = List().Items();
        if (edition_ != List().Edition()) {
            const QScopedValueRollback refreshing(refreshing_, true);
            edition_ = List().Edition();
            entries_.Show(&items);
            top_.reset();
        }
        ShowTop();
        // A row out of sight is scrolled to, and the control hears of it.
        const auto selected = List().Selected();
        chosen_->Show(selected ? entries_.index(static_cast<int>(*selected)) : QModelIndex());
    }

    /// A row tells its name where not all of it is seen; else the list's own tip comes up.
    bool viewportEvent(QEvent* event) override
    {
        if (event->type() == QEvent::ToolTip) {
            const QModelIndex row = indexAt(static_cast<QHelpEvent*>(event)->pos());
            if (!row.isValid() || sizeHintForIndex(row).width() <= viewport()->width()) {
                event->ignore();
                return false;
            }
        }
        return QListView::viewportEvent(event);
    }
    // The toolkit's own way with the mouse is to choose.
    void mousePressEvent(QMouseEvent* event) override { event->accept(); }
    void mouseMoveEvent(QMouseEvent* event) override { event->accept(); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { event->accept(); }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        const QPoint place = event->position().toPoint();
        const int button = ButtonNumber(event->button());
        if (button == 0 || !viewport()->rect().contains(place)) {
            return;
        }
        if (const QModelIndex row = indexAt(place); row.isValid()) {
            Pick(row, button);
        } else {
            UserDoes([this, button] { List().UserReleasesOnNothing(button); });
        }
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Escape) {
            event->ignore(); // the window's matter
            return;
        }
        chosen_->TakeWish();
        QListView::keyPressEvent(event);
        const QModelIndex wish = chosen_->TakeWish();
        if (wish.isValid() && wish != currentIndex()) {
            Pick(wish, LeftButton);
        }
    }
    void resizeEvent(QResizeEvent* event) override
    {
        QListView::resizeEvent(event);
        top_.reset();
        if (TheControl() != nullptr) {
            ShowTop();
        }
    }

private:
    ListBox& List() const { return *static_cast<ListBox*>(TheControl()); }

    void Pick(const QModelIndex& row, int button)
    {
        const auto position = static_cast<std::size_t>(row.row());
        UserDoes([this, position, button] { List().UserPicks(position, button); });
    }
    void ShowTop()
    {
        const QScopedValueRollback refreshing(refreshing_, true);
        if (top_ != List().TopIndex()) {
            top_ = List().TopIndex();
            scrollTo(entries_.index(static_cast<int>(*top_)), PositionAtTop);
        }
    }
    /// The user scrolled: the control says so too, and what scrolls there is a change.
    void NoteTop()
    {
        if (refreshing_ || TheControl() == nullptr) {
            return;
        }
        if (const QModelIndex first = indexAt({1, 1}); first.isValid()) {
            top_ = static_cast<std::size_t>(first.row());
            List().SetTopIndex(*top_);
        }
    }

    Entries entries_;
    ChosenRow* const chosen_ = new ChosenRow(&entries_, this);
    std::optional<int> edition_;
    std::optional<std::size_t> top_; ///< the entry scrolled to last
    bool refreshing_ = false;
};

} // namespace

Peer* MakeList(ListBox& list, QWidget& parent, Desk& desk)
{
    return new ListWidget(list, parent, desk);
}

} // namespace tessarine
