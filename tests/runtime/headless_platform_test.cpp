#include "contract/platform_contract.h"
#include "headless/headless_platform.h"

namespace tessarine::contract
{
namespace
{

class HeadlessWorld
{
public:
    HeadlessWorld() { platform_.files["/run/"] = {}; }

    Platform& platform() { return platform_; }
    static std::string WritableFolder() { return "/run/"; }
    std::int64_t Milliseconds() const { return platform_.milliseconds; }
    void LetTimePass(int milliseconds) { platform_.Advance(milliseconds); }
    void WhenModal(std::function<void()> user)
    {
        platform_.OnNextModal([user = std::move(user)](Form&) { user(); });
    }
    void Click(Control& control) { platform_.Click(control); }
    void MakeRefuse(Form& form) { platform_.refusesSize.insert(&form); }

private:
    HeadlessPlatform platform_;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Headless, PlatformContract, HeadlessWorld);

} // namespace tessarine::contract
