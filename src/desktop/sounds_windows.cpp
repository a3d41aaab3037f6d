// Sound through the system's wave devices. Each sound has one of its own; the system mixes them.
#include "desktop/files.h"
#include "desktop/wave_player.h"

#include <atomic>
#include <cstring>
#include <optional>
#include <stop_token>
#include <thread>
#include <utility>
#include <vector>

#include <windows.h>

#include <mmsystem.h>

namespace tessarine
{
namespace
{

struct Wave {
    WAVEFORMATEX format{};
    std::string samples;
};

std::uint32_t NumberAt(std::string_view bytes)
{
    std::uint32_t number = 0; // the low byte first, in the file as in the machine
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

/// None if the file holds no sound of this kind.
std::optional<Wave> WaveOf(std::string_view file)
{
    constexpr std::size_t headSize = 8; // a name of four letters and the size of what follows
    if (file.size() < headSize + 4 || !file.starts_with("RIFF") || file.substr(headSize, 4) != "WAVE") {
        return std::nullopt;
    }
    Wave wave;
    for (std::string_view rest = file.substr(headSize + 4); rest.size() >= headSize;) {
        const std::size_t size = NumberAt(rest.substr(4));
        const std::string_view body = rest.substr(headSize, size);
        if (rest.starts_with("fmt ") && body.size() >= sizeof(PCMWAVEFORMAT)) {
            std::memcpy(&wave.format, body.data(), sizeof(PCMWAVEFORMAT));
        } else if (rest.starts_with("data")) {
            wave.samples = body;
        }
        rest.remove_prefix(std::min(headSize + size + size % 2, rest.size()));
    }
    if (wave.format.wFormatTag != WAVE_FORMAT_PCM || wave.samples.empty()) {
        return std::nullopt;
    }
    return wave;
}

/// A sound being heard. A device that is left open keeps the system's mixer at work, and the machine
/// awake, so a thread that sleeps till the end closes it.
class Voice
{
public:
    Voice(Wave wave, std::function<void()> ended) : wave_(std::move(wave)), ended_(std::move(ended)) {}
    Voice(const Voice&) = delete;
    Voice& operator=(const Voice&) = delete;
    ~Voice()
    {
        thread_ = {}; // stops and waits
        CloseHandle(event_);
    }

    /// What the system says to opening a device.
    MMRESULT Begin()
    {
        const MMRESULT result = waveOutOpen(&device_, WAVE_MAPPER, &wave_.format,
                                            reinterpret_cast<DWORD_PTR>(event_), 0, CALLBACK_EVENT);
        if (result == MMSYSERR_NOERROR) {
            thread_ = std::jthread([this](const std::stop_token& stop) { Sound(stop); });
        }
        return result;
    }
    void End() const { ended_(); }
    bool IsOver() const { return isOver_; }

private:
    void Sound(const std::stop_token& stop)
    {
        const std::stop_callback wake(stop, [this] { SetEvent(event_); });
        header_.lpData = wave_.samples.data();
        header_.dwBufferLength = static_cast<DWORD>(wave_.samples.size());
        const bool isBegun =
            waveOutPrepareHeader(device_, &header_, sizeof header_) == MMSYSERR_NOERROR &&
            waveOutWrite(device_, &header_, sizeof header_) == MMSYSERR_NOERROR;
        while (isBegun && !stop.stop_requested() && (header_.dwFlags & WHDR_DONE) == 0) {
            WaitForSingleObject(event_, INFINITE);
        }
        waveOutReset(device_);
        waveOutUnprepareHeader(device_, &header_, sizeof header_);
        waveOutClose(device_);
        isOver_ = true;
        End();
    }

    Wave wave_;
    std::function<void()> ended_;
    HANDLE event_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    HWAVEOUT device_ = nullptr;
    WAVEHDR header_{};
    std::atomic<bool> isOver_ = false;
    std::jthread thread_;
};

class Player final : public WavePlayer
{
public:
    bool Begin(const std::string& path, std::function<void()> ended) override
    {
        std::erase_if(voices_, [](const auto& voice) { return voice->IsOver(); });
        const FileResult file = files::Read(path);
        std::optional<Wave> wave = file ? WaveOf(file.text) : std::nullopt;
        if (!wave) {
            ended();
            return true;
        }
        auto voice = std::make_unique<Voice>(std::move(*wave), std::move(ended));
        switch (voice->Begin()) {
        case MMSYSERR_NOERROR:
            voices_.push_back(std::move(voice));
            return true;
        case WAVERR_BADFORMAT:
            voice->End();
            return true;
        default:
            return false;
        }
    }

private:
    std::vector<std::unique_ptr<Voice>> voices_;
};

} // namespace

std::unique_ptr<WavePlayer> OpenWavePlayer()
{
    if (waveOutGetNumDevs() == 0) {
        return nullptr;
    }
    return std::make_unique<Player>();
}

} // namespace tessarine
