// Any bytes in any of the program's files: it starts, tells what is due, and plays on.
#include "choices.h"
#include "support/game_world.h"

#include <array>
#include <cstdlib>

using namespace tessarine;
using namespace tessarine::test;

namespace
{

constexpr std::array<const char*, 4> Files = {"/app/tessarine.cfg", "/app/all.col", "/app/tempgame.txt",
                                              "/run/tessarine.sco"};

void PressFirstButtonOfEachBox(HeadlessPlatform& platform)
{
    for (int box = 0; box < 8; ++box) {
        platform.OnNextModal([&platform](Form& form) {
            if (auto* message = dynamic_cast<MsgForm*>(&form)) {
                platform.Click(message->cmd[0]);
            } else {
                form.Hide();
            }
        });
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Choices choices(bytes, size);
    const std::string path = Files[static_cast<std::size_t>(choices(Files.size()))];
    const std::string text = choices.Rest();

    GameWorld world;
    HeadlessPlatform platform;
    platform.files = world.platform.files;
    platform.files[path] = text;
    PressFirstButtonOfEachBox(platform);
    Form1 form(platform, "/app", "tessarine");
    form.Start();
    // The start has written a new snapshot: put the bytes back for the commands that read them.
    platform.files[path] = text;
    PressFirstButtonOfEachBox(platform);
    platform.Click(form.cmdreset);
    platform.Click(form.cmdopts);
    form.form6.FillSchemeList();
    form.Score1.SetWonSession(true);
    platform.Click(form.cmdnewgame);
    if (form.table.CardOrder.Count() != CardCount || form.table.Stacks[StockStack].Count() != 23) {
        std::abort(); // the game did not go on
    }
    return 0;
}
