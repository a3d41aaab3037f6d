#include "contract/platform_contract.h"

#include "desktop/text.h"
#include "stage.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

namespace tessarine::contract
{
namespace
{

class DesktopWorld
{
public:
    DesktopWorld() { clock_.start(); }

    Platform& platform() { return platform_; }
    std::string WritableFolder() { return PathToBytes(folder_.path() + QLatin1Char('/')); }
    std::int64_t Milliseconds() { return clock_.elapsed(); }
    void LetTimePass(int milliseconds) { QTest::qWait(milliseconds); }
    void WhenModal(const std::function<void()>& user) { tessarine::WhenModal(user); }
    void Click(Control& control) { Mouse(platform_, QTest::MouseClick, control, MiddleOf(control)); }
    void MakeRefuse(Form& form)
    {
        platform_.WindowOf(form)->showMaximized();
        LetTimePass(20);
    }

private:
    DesktopPlatform platform_;
    QTemporaryDir folder_;
    QElapsedTimer clock_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Desktop, PlatformContract, DesktopWorld);

} // namespace
} // namespace tessarine::contract
