// Random gestures of a player: drags to anywhere, right clicks, the stock's buttons, undo.
#pragma once

#include "support/game_world.h"

#include <random>

namespace tessarine::test
{

/// Where the choices of a gesture come from: each call gives a number from 0 to bound - 1.
template <class Choice> void PlayOneGesture(GameWorld& world, Choice&& choice)
{
    const auto anyShownCard = [&] {
        const int start = choice(CardCount);
        for (int i = 0; i < CardCount; ++i) {
            const int card = (start + i) % CardCount;
            const int stack = world.table.StackOf(card);
            const bool exposed = stack != StockStack || world.Cards(StockStack).back() == card;
            if (world.table.IsFaceUp(card) && world.table.cardy[card].Visible() && exposed) {
                return card;
            }
        }
        return start;
    };
    switch (choice(8)) {
    case 0:
    case 1:
        return world.RightClick(anyShownCard());
    case 2:
        return world.RightClick(choice(ItemCount));
    case 3:
    case 4:
        return world.DragOnto(anyShownCard(), FirstPileBase + choice(Piles + Columns + 2));
    case 5:
        return world.DragOnto(anyShownCard(), choice(CardCount));
    case 6:
        return world.Press(world.form.NextCard[static_cast<std::size_t>(choice(2))]);
    default:
        return choice(4) == 0 ? world.Press(world.form.cmdundo)
                              : world.DragToPoint(anyShownCard(), choice(4500), choice(6000));
    }
}

} // namespace tessarine::test
