// A program on the desktop's platform, and a user whose hands go by way of the toolkit's windows.
#pragma once

#include "desktop/desktop_platform.h"
#include "support/storm.h"

#include <QTemporaryDir>

namespace tessarine::test
{

class DesktopHands : public QObject, public Hands
{
public:
    DesktopHands(DesktopPlatform& platform, Form1& main);

    void Press(Form& form, Point at, int button, int shift) override;
    void Move(Form& form, Point at) override { Mouse(form, at, 0, QEvent::MouseMove); }
    void Release(Form& form, Point at, int button) override;
    void Work(Control& control, int button, int detail) override;
    void Activate(Control& control) override;
    void AskForNames(const Forms& forms) override;
    void Resize(Form& form, Size size) override;
    void Refuse(Form& form) override;
    void Close(Form& form) override;
    void ComeToFront(Form& form) override { platform_.WindowOf(form)->activateWindow(); }
    void Key(Form& form, int detail) override;
    void Wait(int milliseconds) override;
    void Settle() override;
    void Meanwhile(int calls, std::function<void()> action) override;
    bool IsInside() const override { return working_ > 0; }
    std::string Fault() override;
    bool IsAtRest() const override { return !main_.resizing.IsDue(); }
    bool HasEnded() const override { return false; } // the process is over by then

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Mouse(Form& form, Point at, int button, QEvent::Type type, int shift = 0);
    void MeetSoon(const QPointer<QWidget>& window);
    void AnswerBox(QWidget& window);

    DesktopPlatform& platform_;
    Form1& main_;
    int state_ = 0;   ///< that the next window gets, as a number that counts on
    int working_ = 0; ///< deeds of the hands that the program is still busy with
    Qt::MouseButtons buttons_;
    std::string fault_;
};

/// Whether the storm of this seed has a twin. It needs a pixel of the screen wherever the pointer can
/// be.
bool IsCompared(unsigned seed);

/// The seed chooses the scale of the screen, a whole number with a twin.
struct Toolkit {
    explicit Toolkit(unsigned seed);
};

class DesktopStage : public Stage
{
public:
    explicit DesktopStage(unsigned seed);
    Form1& form() override { return form_; }
    Hands& hands() override { return hands_; }
    std::size_t Widgets() const override;
    DesktopPlatform& platform() { return platform_; }

private:
    Toolkit toolkit_;
    QTemporaryDir folder_;
    DesktopPlatform platform_{[] { return std::unique_ptr<WavePlayer>(); }};
    Form1 form_;
    DesktopHands hands_;
};

} // namespace tessarine::test
