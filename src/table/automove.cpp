#include "table/automove.h"

#include "table/rules.h"

namespace tessarine
{

Whole CheckDone(const Table& table)
{
    for (int stack = 0; stack < StockStack; ++stack) {
        if (!table.Stacks[stack].IsEmpty()) {
            return 0;
        }
    }
    const TextList& stock = table.Stacks[StockStack];
    if (stock.Count() > 1 || (stock.Count() == 1 && stock.Back() != Marker)) {
        return 0;
    }
    table.sound().PlayWav("_done.wav");
    return AllDone;
}

void Automove::EndTest()
{
    if (CheckDone(table_) == AllDone) {
        gameWon_();
    }
}

void Automove::AutoMove(int source, int target)
{
    if (CheckDone(table_) == AllDone) {
        gameWon_();
        return;
    }
    if (source == StockStack) {
        return;
    }
    if (target < FirstPile) {
        InnerFault("wrong automove call" + NumberText(target));
    }
    while (NextCardFollows(source, target)) {
        const int card = table_.TopCard(source);
        const std::size_t before = table_.Stacks[target].Count();
        hand_.Take(card);
        drops_.DropOnSol(SlotOf(target));
        if (table_.Stacks[target].Count() == before) {
            InnerFault("invalid call");
            return;
        }
    }
    EndTest();
}

bool Automove::NextCardFollows(int source, int target) const
{
    const int card = table_.TopCard(source);
    const int top = table_.TopCard(target);
    return card != NoCard && top != NoCard && FollowsOnPile(table_, card, top);
}

void Automove::InnerFault(const std::string& text)
{
    table_.form().platform().PlainMessage(text, PlainButtons::Ok);
}

} // namespace tessarine
