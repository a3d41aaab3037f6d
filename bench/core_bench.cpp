// The core's speed on the headless platform.
#include "appearance/scheme_file.h"
#include "support/game_world.h"
#include "support/storm.h"

#include <benchmark/benchmark.h>

namespace tessarine::test
{
namespace
{

void DealCards(benchmark::State& state)
{
    GameWorld world;
    for (auto _ : state) {
        world.form.deal.DealCards(Replay::Shuffle);
    }
}
BENCHMARK(DealCards)->Unit(benchmark::kMicrosecond);

/// With 30 cards on the finished piles, whose faces are drawn anew.
void ScaleTable(benchmark::State& state)
{
    GameWorld world;
    GameWorld::Position position;
    position.columns = {{49, 48, 47, 46, 45}, {39, 38, 37, 36, 35}, {29, 28}, {9, 8, 7}, {}};
    position.stock = {30, 31, 32, 33, 34};
    for (int suit = 0; suit < Suits; ++suit) {
        std::vector<int> pile;
        for (int number = 0; number < 6; ++number) {
            pile.push_back(suit * CardsInSuit + number);
        }
        position.piles.push_back(pile);
    }
    world.Arrange(position);
    float factor = 1.25F;
    for (auto _ : state) {
        world.form.scaling.ScaleTable(factor);
        factor = 1 / factor;
    }
}
BENCHMARK(ScaleTable)->Unit(benchmark::kMicrosecond);

/// A storm of 400 gestures, the waits of the slides left out (the clock is virtual), the looks after
/// each of them counted in.
void RandomGame(benchmark::State& state)
{
    unsigned seed = 0;
    for (auto _ : state) {
        ++seed;
        HeadlessStage stage(seed);
        StormCount count;
        PlayStorm(stage, seed, RandomGestures(seed, 400), count);
    }
}
BENCHMARK(RandomGame)->Unit(benchmark::kMillisecond);

// The schemes: a file of a thousand of them.

void FillWithSchemes(GameWorld& world)
{
    std::string text;
    for (int i = 0; i < 1000; ++i) {
        text += EntryText(NameLine("scheme " + std::to_string(i * 7919 % 1000)), world.form.shared);
    }
    world.platform.files["/app/all.col"] += text;
    world.form.form6.FillSchemeList();
}

void RefillSchemeList(benchmark::State& state)
{
    GameWorld world;
    FillWithSchemes(world);
    for (auto _ : state) {
        world.form.form6.FillSchemeList();
        benchmark::DoNotOptimize(world.form.form6.List1.Items().Count());
    }
}
BENCHMARK(RefillSchemeList)->Unit(benchmark::kMillisecond);

/// One Add, one Replace and one Delete by the buttons of the dialog; the time is for all three.
void AddReplaceDeleteScheme(benchmark::State& state)
{
    GameWorld world;
    FillWithSchemes(world);
    world.form.form6.Show();
    ListBox& list = world.form.form6.List1;
    for (auto _ : state) {
        world.platform.typedAnswers.push_back("zebra");
        world.platform.Click(world.form.form6.addsch);
        list.Select(list.Items().Find("zebra"));
        world.platform.plainAnswers = {true};
        world.platform.Click(world.form.form6.repsch);
        world.platform.plainAnswers = {true, true};
        list.Select(list.Items().Find("zebra"));
        world.platform.Click(world.form.form6.delsch);
        world.platform.plainAnswers.clear();
    }
    state.counters["schemes"] = static_cast<double>(list.Items().Count());
}
BENCHMARK(AddReplaceDeleteScheme)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tessarine::test
