// The desktop's speed in a real window, from an event to the painted pixels.
#include "desktop/desktop_platform.h"
#include "form1.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <vector>

namespace tessarine
{
namespace
{

/// Width of the window in logical pixels at which a table of the widest screens stands.
constexpr int WideWindow = 3840;

constexpr int WideWindowHeight = 2160;

/// Sees when a window has been painted.
class PaintWatch : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }
    /// Lets events run until a painting has gone to the screen.
    void Await()
    {
        while (!painted_) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QCoreApplication::processEvents();
        painted_ = false;
    }
    void Forget() { painted_ = false; }

private:
    bool painted_ = false;
};

class Desktop
{
public:
    Desktop() : form(platform, ".", "bench")
    {
        form.Start();
        window = platform.WindowOf(form);
        surface = window->childAt(100, 300);
        surface->installEventFilter(&watch);
        LayRunOfTen();
        Settle();
    }

    /// The window is made high enough for a run of ten cards.
    void ScaleToWidth(int pixels)
    {
        window->resize(window->width(), pixels < WideWindow ? 514 : WideWindowHeight);
        QTest::qWait(200);
        for (int round = 0; round < 3; ++round) {
            form.scaling.ScaleTable(static_cast<float>(pixels) / static_cast<float>(window->width()));
        }
        Settle();
    }

    void Settle()
    {
        QTest::qWait(200);
        watch.Forget();
    }

    void Mouse(QEvent::Type type, QPointF place)
    {
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, surface->mapTo(window, place), surface->mapToGlobal(place),
                          button, type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(surface, &event);
    }

    DesktopPlatform platform;
    Form1 form;
    QWidget* window = nullptr;
    QWidget* surface = nullptr;
    PaintWatch watch;

private:
    /// The nine to the zero of the first suit, on the first column.
    void LayRunOfTen()
    {
        Table& table = form.table;
        for (int card = CardsInSuit - 1; card >= 0; --card) {
            TextList& stack = table.Stacks[table.StackOf(card)];
            stack.RemoveAt(*stack.Find(EntryOfCard(card)));
            table.LayOn(0, card, 0, 0);
            table.cardy[card].SetVisible(true);
            table.ShowCardFace(card);
        }
        form.scaling.ScaleTable(1.0F);
    }
};

/// Runs `step` and the painting that it leads to as the iterations; tells the median too, since one
/// disturbed step says nothing of the others.
template <class Step> void MeasureSteps(benchmark::State& state, Desktop& desktop, Step&& step)
{
    std::vector<double> times;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        step();
        desktop.watch.Await();
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(took.count());
        times.push_back(took.count() * 1000);
    }
    std::ranges::sort(times);
    state.counters["median_ms"] = times[times.size() / 2];
    state.counters["width_px"] = desktop.window->width();
}

Desktop& TheDesktop()
{
    static Desktop desktop;
    return desktop;
}

void DragOfTenCards(benchmark::State& state)
{
    Desktop& desktop = TheDesktop();
    desktop.ScaleToWidth(static_cast<int>(state.range(0)));
    const Label& head = desktop.form.table.cardy[9];
    const QPointF grip(head.Left() / TwipsPerPixel + 4, head.Top() / TwipsPerPixel + 4);
    desktop.Mouse(QEvent::MouseButtonPress, grip);
    desktop.Settle();
    int step = 0;
    MeasureSteps(state, desktop, [&] {
        ++step;
        desktop.Mouse(QEvent::MouseMove, grip + QPointF(3 + step % 40 * 2, 5 + step % 30));
    });
    desktop.Mouse(QEvent::MouseButtonRelease, grip);
    desktop.Settle();
}
BENCHMARK(DragOfTenCards)->Arg(264)->Arg(WideWindow)->UseManualTime()->Unit(benchmark::kMillisecond);

void Rescale(benchmark::State& state)
{
    Desktop& desktop = TheDesktop();
    desktop.ScaleToWidth(static_cast<int>(state.range(0)));
    bool wider = false;
    MeasureSteps(state, desktop, [&] {
        wider = !wider;
        desktop.form.scaling.ScaleTable(wider ? 1.01F : 1 / 1.01F);
    });
}
BENCHMARK(Rescale)->Arg(264)->Arg(WideWindow)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Opens and shuts the options dialog; the first opening is the one that makes its widgets.
void OpenOptions(benchmark::State& state)
{
    Desktop& desktop = TheDesktop();
    bool isFirst = true;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        desktop.form.form6.Show();
        QWidget* const dialog = desktop.platform.WindowOf(desktop.form.form6);
        PaintWatch watch;
        dialog->installEventFilter(&watch);
        watch.Await();
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(took.count());
        if (isFirst) {
            state.counters["first_ms"] = took.count() * 1000;
        }
        isFirst = false;
        desktop.form.form6.Hide();
        desktop.Settle();
    }
    state.counters["fonts"] = static_cast<double>(desktop.form.form6.List2.Items().Count());
}
BENCHMARK(OpenOptions)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tessarine

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication::setStyle(QStringLiteral("fusion"));
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    std::fflush(stdout);
    std::_Exit(0); // the desktop under measure has no orderly end
}
