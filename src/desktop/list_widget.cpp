// The toolkit's list, over the entries of a list box.
#include "desktop/text.h"
#include "desktop/widgets.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QListView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <optional>

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

private:
    const TextList* entries_ = nullptr;
    int count_ = 0;
};

class ListWidget final : public QListView, public NativePeer
{
public:
    ListWidget(ListBox& list, QWidget& parent, Desk& desk)
        : QListView(&parent), NativePeer(*this, list, desk)
    {
        setModel(&entries_);
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
        const QScopedValueRollback refreshing(refreshing_, true);
        const TextList& items = List().Items();
        if (edition_ != List().Edition()) {
            edition_ = List().Edition();
            entries_.Show(&items);
            top_.reset();
        }
        const auto selected = List().Selected();
        const QModelIndex index = selected ? entries_.index(static_cast<int>(*selected)) : QModelIndex();
        if (currentIndex() != index) {
            setCurrentIndex(index);
        }
        if (index.isValid() ? !selectionModel()->isSelected(index) : selectionModel()->hasSelection()) {
            selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
        }
        ShowTop();
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        QListView::mouseReleaseEvent(event);
        if (event->button() != Qt::LeftButton) {
            return;
        }
        const QPoint place = event->position().toPoint();
        const bool inside = viewport()->rect().contains(place);
        const QModelIndex released = inside ? indexAt(place) : currentIndex();
        if (released.isValid()) {
            Pick(released);
        } else {
            UserDoes([this] { List().UserReleasesOnNothing(); });
        }
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Escape) {
            event->ignore(); // the window's matter
            return;
        }
        const QModelIndex before = currentIndex();
        QListView::keyPressEvent(event);
        if (currentIndex().isValid() && currentIndex() != before) {
            Pick(currentIndex());
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

    void Pick(const QModelIndex& index)
    {
        const auto position = static_cast<std::size_t>(index.row());
        UserDoes([this, position] { List().UserPicks(position); });
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
