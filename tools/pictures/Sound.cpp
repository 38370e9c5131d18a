#include "Sound.h"

#include "Error.h"
#include "appendNumber.h"
#include "readFile.h"
#include "text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <sstream>
#include <vector>

namespace fleetwright {

namespace {

constexpr int sampleRate = 44100;

struct Voice {
    double start = 0, length = 0;
    double from = 0, to = 0;
    double fade = 0, warmth = 0, loudness = 0;
};

bool readVoice(std::string_view line, Voice& voice) {
    std::istringstream words{std::string(line)};
    std::string kind;
    words >> kind;
    for (const auto& [name, value] : {std::pair{"start", &voice.start},
                                      {"length", &voice.length},
                                      {"from", &voice.from},
                                      {"to", &voice.to},
                                      {"fade", &voice.fade},
                                      {"warmth", &voice.warmth},
                                      {"loudness", &voice.loudness}}) {
        std::string word;
        if (!(words >> word >> *value) || word != name) {
            return false;
        }
    }
    return kind == "voice" && voice.length > 0;
}

/// Noise that is the same on every machine.
class Noise {
public:
    double next() {
        m_state = m_state * 1664525U + 1013904223U;
        return static_cast<double>(m_state >> 8U) / (1U << 23U) - 1.0;
    }

private:
    std::uint32_t m_state = 1;
};

void add(const Voice& voice, std::vector<double>& samples) {
    Noise noise;
    double smoothNoise = 0;
    double phase = 0;
    const auto first = static_cast<std::size_t>(voice.start * sampleRate);
    const auto count = static_cast<std::size_t>(voice.length * sampleRate);
    samples.resize(std::max(samples.size(), first + count));
    for (std::size_t i = 0; i < count; ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(count);
        double sample = 0;
        if (voice.from > 0) {
            const double frequency = voice.from * std::pow(voice.to / voice.from, part);
            phase += 2 * std::numbers::pi * frequency / sampleRate;
            sample = std::sin(phase) + voice.warmth * std::sin(2 * phase) +
                     voice.warmth * voice.warmth * std::sin(3 * phase);
        } else {
            smoothNoise += (noise.next() - smoothNoise) * (1 - voice.warmth);
            sample = smoothNoise;
        }
        // A few milliseconds at either end keep the voice from clicking.
        constexpr double edge = 0.005 * sampleRate;
        const double in = std::min(1.0, static_cast<double>(i) / edge);
        const double out = std::min(1.0, static_cast<double>(count - i) / (4 * edge));
        samples[first + i] += voice.loudness * std::exp(-voice.fade * part) * in * out * sample;
    }
}

std::string encode(const std::vector<double>& samples) {
    constexpr std::uint32_t sampleSize = 2;
    const auto dataSize = static_cast<std::uint32_t>(samples.size()) * sampleSize;
    std::string bytes = "RIFF";
    appendNumber(bytes, 36 + dataSize, 4);
    bytes += "WAVEfmt ";
    appendNumber(bytes, 16, 4);
    appendNumber(bytes, 1, 2);  // plain samples
    appendNumber(bytes, 1, 2);  // mono
    appendNumber(bytes, sampleRate, 4);
    appendNumber(bytes, sampleRate * sampleSize, 4);
    appendNumber(bytes, sampleSize, 2);
    appendNumber(bytes, 8 * sampleSize, 2);
    bytes += "data";
    appendNumber(bytes, dataSize, 4);
    for (const double sample : samples) {
        constexpr double loudest = 32767;
        const auto value = std::lround(std::clamp(sample, -1.0, 1.0) * loudest);
        appendNumber(bytes, static_cast<std::uint32_t>(value), 2);
    }
    return bytes;
}

}  // namespace

std::string waveFile(const std::filesystem::path& description) {
    const std::string text = readTextFile(description);
    std::vector<double> samples;
    LineReader lines(text);
    std::string_view line;
    while (lines.next(line)) {
        if (line.empty() || line.front() == '#') {
            continue;
        }
        Voice voice;
        if (!readVoice(line, voice)) {
            throw FileError(description,
                            "line " + std::to_string(lines.lineNumber()) + ": no voice");
        }
        add(voice, samples);
    }
    return encode(samples);
}

}  // namespace fleetwright
