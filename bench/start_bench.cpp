// start_bench RUNS PROGRAM OTHER: starts two programs of first_picture.h in turn and prints the medians
// of both and of their ratio, pair by pair. A first run of each is not counted.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace
{

struct Start {
    double milliseconds = 0;
    double kilobytes = 0;
};

Start Run(const std::string& program)
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const double startedAt = std::chrono::duration<double, std::milli>(now).count();
    const std::string command = "STARTED_AT=" + std::to_string(startedAt) + " exec " + program;
    Start start;
    FILE* const output = popen(command.c_str(), "r");
    if (output == nullptr ||
        std::fscanf(output, "%lf %lf", &start.milliseconds, &start.kilobytes) != 2) {
        std::fprintf(stderr, "%s told nothing\n", program.c_str());
        std::exit(1);
    }
    pclose(output);
    return start;
}

double Median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

void Print(const char* what, const std::vector<double>& one, const std::vector<double>& other)
{
    std::vector<double> ratios;
    for (std::size_t i = 0; i < one.size(); ++i) {
        ratios.push_back(one[i] / other[i]);
    }
    std::printf("%-28s %9.1f  against %9.1f   ratio %.2f (%.2f to %.2f)\n", what, Median(one),
                Median(other), Median(ratios), std::ranges::min(ratios), std::ranges::max(ratios));
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: start_bench RUNS PROGRAM OTHER\n");
        return 1;
    }
    std::vector<double> times;
    std::vector<double> otherTimes;
    std::vector<double> memory;
    std::vector<double> otherMemory;
    for (int run = 0; run <= std::atoi(argv[1]); ++run) {
        const Start one = Run(argv[2]);
        const Start other = Run(argv[3]);
        if (run == 0) {
            continue;
        }
        times.push_back(one.milliseconds);
        otherTimes.push_back(other.milliseconds);
        memory.push_back(one.kilobytes);
        otherMemory.push_back(other.kilobytes);
    }
    Print("first picture, ms", times, otherTimes);
    Print("memory (PSS), KB", memory, otherMemory);
    return 0;
}
