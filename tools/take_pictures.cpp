// Takes the pictures of the help page, the README and the desktop entry from the program itself:
//   take_pictures PROGRAM-FOLDER DATA-FOLDER DOCS-FOLDER
// Plays real games until a position shows what a picture is to show. The pictures have four pixels
// for each that the program counts, so that they are sharp on a fine screen too. To be run by hand
// when the look of the table changes; needs no display (QT_QPA_PLATFORM=offscreen).
#include "desktop/desktop_platform.h"
#include "desktop/dress_style.h"
#include "desktop/painter.h"
#include "form1.h"
#include "kit/icons.h"
#include "table/rules.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>
#include <numeric>
#include <optional>
#include <random>
#include <utility>

using namespace tessarine;

namespace
{

constexpr float PictureScale = 1.4F;
constexpr int IconSide = 256;
constexpr int MostTries = 2000;
constexpr int FewCards = 9;

/// Plays by the rules with a plain strategy: piles first, then whatever fits, the stock in between.
class Player
{
public:
    explicit Player(Form1& form) : form_(form), table_(form.table)
    {
        std::iota(order_.begin(), order_.end(), 0);
    }

    /// The same deals at each run, so that the pictures change only with the look of the table.
    void DealAnew()
    {
        std::ranges::shuffle(order_, chance_);
        table_.CardOrder.Clear();
        for (const int card : order_) {
            table_.CardOrder.Add(EntryOfCard(card));
        }
        form_.deal.DealCards(Replay::PresentOrder);
        form_.scaling.ScaleTable(1.0F);
        form_.ring.NextStockCard();
        form_.undo.Clear();
    }

    /// One move, or one turn of the stock. False if a whole pass through the stock brought nothing.
    bool Step()
    {
        if (MoveFrom(true) || MoveFrom(false)) {
            turns_ = 0;
            return true;
        }
        form_.ring.NextStockCard();
        return ++turns_ <= static_cast<int>(table_.Stacks[StockStack].Count());
    }

    int CardsLeft() const
    {
        int left = 0;
        for (int stack = 0; stack <= StockStack; ++stack) {
            left += static_cast<int>(table_.Stacks[stack].Count());
        }
        return left - 1; // the marker
    }

    int HeadOfRun(int column) const
    {
        for (const std::string& entry : table_.Stacks[column]) {
            if (table_.IsFaceUp(CardOfEntry(entry))) {
                return CardOfEntry(entry);
            }
        }
        return NoCard;
    }

    void Drag(int card, int onto)
    {
        Hold(card, onto, 1);
        form_.FeedMouseUp({LeftButton, 0, pointer_.x, pointer_.y});
    }

    /// Takes a card and moves it part of the way to another item; the button stays down.
    void Hold(int card, int onto, double part)
    {
        const Label& from = table_.cardy[card];
        const Label& to = table_.cardy[onto];
        const Point grip{60, 60};
        const Point start = from.PlaceOnForm();
        pointer_ = {start.x + grip.x, start.y + grip.y};
        form_.FeedMouseDown({LeftButton, 0, pointer_.x, pointer_.y});
        for (const int picked : form_.hand.DragCards()) {
            Label& held = table_.cardy[picked];
            held.Move(held.Left() + (to.Left() - start.x + table_.Picture2.Left()) * part,
                      held.Top() + (to.Top() - start.y + table_.Picture2.Top()) * part +
                          220 * (1 - part));
        }
    }

private:
    bool MoveFrom(bool ontoPiles)
    {
        for (int stack = 0; stack <= StockStack; ++stack) {
            if ((IsColumn(stack) || stack == StockStack) && MoveOneFrom(stack, ontoPiles)) {
                return true;
            }
        }
        return false;
    }

    bool MoveOneFrom(int stack, bool ontoPiles)
    {
        const TextList& entries = table_.Stacks[stack];
        if (entries.IsEmpty() || entries.Back() == Marker) {
            return false;
        }
        if (ontoPiles) {
            for (int pile = FirstPile; pile < FirstPile + Piles; ++pile) {
                if (FitsOnPile(table_, table_.TopCard(stack), pile)) {
                    Drag(table_.TopCard(stack), SlotOf(pile));
                    return true;
                }
            }
            return false;
        }
        const int head = stack == StockStack ? table_.TopCard(stack) : HeadOfRun(stack);
        return MoveOntoColumn(head, stack);
    }

    bool MoveOntoColumn(int head, int source)
    {
        const bool hasCardsBehind = EntryOfCard(head) != table_.Stacks[source].Front();
        for (int column = 0; column < Columns; ++column) {
            const int top = table_.TopCard(column);
            if (column != source && top != NoCard && FollowsInColumn(table_, head, top)) {
                Drag(head, top);
                return true;
            }
        }
        for (int column = 0; column < Columns; ++column) {
            if (source != StockStack && hasCardsBehind && table_.TopCard(column) == NoCard) {
                Drag(head, SlotOf(column));
                return true;
            }
        }
        return false;
    }

    Form1& form_;
    Table& table_;
    std::array<int, CardCount> order_{};
    std::mt19937 chance_{1};
    Point pointer_;
    int turns_ = 0;
};

QWidget* MainWindow()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/// The upper part of the window, as far down as the cards go.
QPixmap TablePicture(const Form1& form)
{
    Twips bottom = 0;
    for (int card = 0; card < CardCount; ++card) {
        const Label& label = form.table.cardy[card];
        bottom = std::max(bottom, label.Visible() ? label.PlaceOnForm().y + label.Height() : 0);
    }
    QCoreApplication::processEvents();
    QWidget& window = *MainWindow();
    return window.grab(QRect(0, 0, window.width(), static_cast<int>(bottom / TwipsPerPixel) + 12));
}

/// The table as it is, with the options beside it as they come up there.
QPixmap TableAndOptions(Form1& form, const DesktopPlatform& platform)
{
    constexpr int gap = 8;
    const QPixmap table = TablePicture(form);
    form.form6.Show();
    QCoreApplication::processEvents();
    const QPixmap options = platform.WindowOf(form.form6)->grab();
    form.form6.Hide();
    const double ratio = table.devicePixelRatio();
    QPixmap both(table.width() + options.width() + static_cast<int>(gap * ratio),
                 std::max(table.height(), options.height()));
    both.setDevicePixelRatio(ratio);
    both.fill(Qt::transparent);
    QPainter painter(&both);
    painter.drawPixmap(0, 0, table);
    painter.drawPixmap(QPointF(table.deviceIndependentSize().width() + gap, 0), options);
    return both;
}

QPixmap TopRow(const Form1& form)
{
    QCoreApplication::processEvents();
    QWidget& window = *MainWindow();
    const auto top = static_cast<int>(form.table.Picture2.Top() / TwipsPerPixel);
    const auto height = static_cast<int>(form.table.StackTop[0] / TwipsPerPixel);
    return window.grab(QRect(0, top, window.width(), height - 4));
}

QPixmap ButtonPicture(const BoxControl& button)
{
    const Point place = button.PlaceOnForm();
    return MainWindow()->grab(QRectF(place.x / TwipsPerPixel, place.y / TwipsPerPixel,
                                     button.Width() / TwipsPerPixel, button.Height() / TwipsPerPixel)
                                  .toRect());
}

void Keep(const QPixmap& picture, const QString& path)
{
    if (picture.save(path)) {
        std::printf("%s: %d x %d\n", qUtf8Printable(path), picture.width(), picture.height());
    } else {
        std::fprintf(stderr, "%s could not be written\n", qUtf8Printable(path));
    }
}

/// A run of three or more that fits on another column.
std::optional<std::pair<int, int>> DragOfARun(const Form1& form, const Player& player)
{
    for (int column = 0; column < Columns; ++column) {
        const int head = player.HeadOfRun(column);
        const bool isLong =
            head != NoCard &&
            form.table.CardNumber(head) - form.table.CardNumber(form.table.TopCard(column)) >= 2;
        for (int other = 0; other < Columns && isLong; ++other) {
            const int top = form.table.TopCard(other);
            if (other != column && top != NoCard && FollowsInColumn(form.table, head, top)) {
                return std::pair(head, top);
            }
        }
    }
    return std::nullopt;
}

/// Plays game after game until `isReached` says so. False if none comes to it.
template <class Reached> bool PlayUntil(Player& player, Reached&& isReached)
{
    for (int game = 0; game < MostTries; ++game) {
        player.DealAnew();
        do {
            if (isReached()) {
                return true;
            }
        } while (player.CardsLeft() > FewCards - 3 && player.Step());
    }
    return false;
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication::setStyle(new DressStyle);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication application(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: take_pictures PROGRAM-FOLDER DATA-FOLDER DOCS-FOLDER\n");
        return 1;
    }
    const auto folderOf = [](const char* path) {
        return QDir(QString::fromLocal8Bit(path)).absolutePath() + QLatin1Char('/');
    };
    const QString data = folderOf(argv[2]);
    const QString docs = folderOf(argv[3]);

    // The program runs in a folder of its own, with the data files of the one given.
    const QTemporaryDir folder;
    QFile::copy(QString::fromLocal8Bit(argv[1]) + QStringLiteral("/all.col"),
                folder.filePath(QStringLiteral("all.col")));
    QFile configuration(folder.filePath(QStringLiteral("tessarine.cfg")));
    if (!configuration.open(QIODevice::WriteOnly)) {
        return 1;
    }
    configuration.write(
        "\r\n 1 16777215 0 \r\n 1 \r\n 0 \r\n 8388608 \r\n 32768 \r\n 32896 \r\n 128 \r\n"
        "default.col\r\narial\r\n");
    configuration.close();
    QDir::setCurrent(folder.path());

    DesktopPlatform platform;
    Form1 form(platform, folder.path().toStdString(), "tessarine");
    form.Start();
    form.shared.MoveSteps = 0;
    form.scaling.ScaleTable(PictureScale);
    Player player(form);
    player.DealAnew();

    Keep(PictureAsPixmap(icons::Program(), IconSide), data + QStringLiteral("tessarine.png"));
    for (const auto& [button, name] :
         {std::pair(&form.cmdLoadGame, "load"), std::pair(&form.cmdSaveGame, "save"),
          std::pair(&form.cmdscore, "scores"), std::pair(&form.cmdopts, "options"),
          std::pair(&form.cmdnewgame, "new"), std::pair(&form.cmdreset, "restore"),
          std::pair(&form.cmdabout, "about"), std::pair(&form.cmdhelp, "help"),
          std::pair(&form.cmdexit, "exit"), std::pair(&form.cmdundo, "undo")}) {
        Keep(ButtonPicture(*button), data + QStringLiteral("help_cmd_%1.png").arg(QLatin1String(name)));
    }
    Keep(TablePicture(form), data + QStringLiteral("help_table.png"));
    Keep(TopRow(form), data + QStringLiteral("help_stock.png"));

    bool found = PlayUntil(player, [&] { return DragOfARun(form, player).has_value(); });
    if (found) {
        Keep(TableAndOptions(form, platform), docs + QStringLiteral("table.png"));
        const auto [head, onto] = *DragOfARun(form, player);
        player.Hold(head, onto, 0.6);
        Keep(TablePicture(form), data + QStringLiteral("help_run.png"));
        form.FeedMouseUp({LeftButton, 0, 0, 0});
    }
    const bool won = PlayUntil(player, [&] { return player.CardsLeft() <= FewCards; });
    if (won) {
        Keep(TablePicture(form), data + QStringLiteral("help_win.png"));
    }
    if (!found || !won) {
        std::fprintf(stderr, "a position for a picture did not come up\n");
    }
    return found && won ? 0 : 1;
}
