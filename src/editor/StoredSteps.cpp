#include "StoredSteps.h"

#include "HullRules.h"
#include "RecoverySteps.h"
#include "ShipClass.h"
#include "base64.h"
#include "fingerprint.h"
#include "momentDelta.h"
#include "text.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace fleetwright {

namespace {

constexpr std::string_view title = "FleetWright steps 1";

/// Far more than steps take, whatever they change.
constexpr std::size_t mostBytes = std::size_t{64} << 20U;

/// Base64 in one line.
std::string inLine(std::string_view bytes) {
    std::string text = toBase64(bytes);
    std::erase_if(text, [](char letter) { return letter == '\r' || letter == '\n'; });
    return text;
}

/// Whether the rules know the parts of a hull. Its mass and thrust can be any.
bool isKnown(const HullDesign& hull) {
    return hull.hullType >= Warship && hull.hullType <= QSpaceStation && hull.armor >= 0 &&
           hull.armor <= mostArmor && hull.streamline >= 0 && hull.streamline <= mostStreamline &&
           (hull.ftl == NoDrive || hull.ftl == NormalDrive || hull.ftl == TugDrive);
}

/// Whether such a design can be: its systems are in the catalogue, and its list shows what is
/// aboard, once each.
bool canBe(const DesignMoment& moment) {
    const std::size_t records = moment.catalogue->lines().size();
    std::vector<std::size_t> aboard, rows = moment.rows;
    std::size_t next = 0;
    for (const auto& [record, amount] : moment.ship.amounts) {
        if (record < next || record >= records || amount == 0) {
            return false;
        }
        next = record + 1;
        if (amount > 0) {
            aboard.push_back(record);
        }
    }
    std::sort(rows.begin(), rows.end());
    return rows == aboard && isKnown(moment.ship.hull) && isKnown(moment.ship.lastHull.design);
}

/// Reads the lines of a text one by one; what is missing or wrong is noticed at the end.
class Lines {
public:
    explicit Lines(std::string_view text) : m_reader(text) {}

    bool isWell() const { return m_isWell; }
    void require(bool isAsMeant) { m_isWell = m_isWell && isAsMeant; }

    /// What is behind this word in the next line.
    std::string_view next(std::string_view word) {
        std::string_view line;
        require(m_reader.next(line) && line.starts_with(word));
        return m_isWell ? line.substr(word.size()) : std::string_view();
    }

    /// The bytes in the next line; nothing behind the last one.
    std::optional<std::string> nextBytes() {
        std::string_view line;
        return m_reader.next(line) ? fromBase64(line) : std::nullopt;
    }

    std::string bytes(std::string_view word) {
        std::optional<std::string> bytes = fromBase64(next(word));
        require(bytes.has_value());
        return std::move(bytes).value_or("");
    }

    std::vector<std::int64_t> numbers(std::string_view word) {
        std::vector<std::int64_t> numbers;
        for (std::string_view rest = next(word); m_isWell && !rest.empty();) {
            rest.remove_prefix(1);
            std::int64_t number = 0;
            const auto [end, error] =
                std::from_chars(rest.data(), rest.data() + rest.size(), number);
            rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
            require(error == std::errc() && (rest.empty() || rest.front() == ' '));
            numbers.push_back(number);
        }
        return numbers;
    }

private:
    LineReader m_reader;
    bool m_isWell = true;
};

void readNow(Lines& lines, DesignMoment& now) {
    now.ship.g_sShipName = lines.bytes("ship ");
    now.ship.g_sDesignerName = lines.bytes("designer ");
    const std::vector<std::int64_t> numbers = lines.numbers("numbers");
    lines.require(numbers.size() == shipWordCount + 2);
    if (lines.isWell()) {
        ShipWords words = {};
        std::transform(numbers.begin(), numbers.begin() + shipWordCount, words.begin(),
                       [](std::int64_t number) { return static_cast<std::uint32_t>(number); });
        setWords(now.ship, words);
        now.ship.g_bAutoMass = numbers[shipWordCount] != 0;
        now.isAutoMassMarked = numbers[shipWordCount + 1] != 0;
    }
    const std::vector<std::int64_t> amounts = lines.numbers("aboard");
    for (std::size_t i = 0; i + 1 < amounts.size(); i += 2) {
        now.ship.amounts.emplace_back(amounts[i], amounts[i + 1]);
    }
    for (const std::int64_t row : lines.numbers("rows")) {
        now.rows.push_back(static_cast<std::size_t>(row));
    }
}

}  // namespace

bool StoredSteps::go(bool isForth, DesignMoment& moment, std::size_t& place) const {
    if (place == (isForth ? steps.size() : 0)) {
        return false;
    }
    place -= isForth ? 0 : 1;
    const bool isWell = applyDelta(steps[place], isForth ? Way::Forth : Way::Back, moment);
    place += isForth ? 1 : 0;
    return isWell;
}

DesignMoment StoredSteps::first() const {
    DesignMoment moment = now;
    for (std::size_t place = at; go(false, moment, place);) {
    }
    return moment;
}

std::string StoredSteps::text() const {
    std::string text = "catalogue " + fingerprint(now.catalogue->text());
    text += "\nship " + inLine(now.ship.g_sShipName);
    text += "\ndesigner " + inLine(now.ship.g_sDesignerName);
    const auto add = [&text](std::int64_t number) { text += ' ' + std::to_string(number); };
    text += "\nnumbers";
    for (const std::uint32_t word : wordsOf(now.ship)) {
        add(static_cast<std::int32_t>(word));
    }
    add(now.ship.g_bAutoMass ? 1 : 0);
    add(now.isAutoMassMarked ? 1 : 0);
    text += "\naboard";
    for (const auto& [record, amount] : now.ship.amounts) {
        add(static_cast<std::int64_t>(record));
        add(amount);
    }
    text += "\nrows";
    for (const std::size_t row : now.rows) {
        add(static_cast<std::int64_t>(row));
    }
    text += "\nat";
    add(static_cast<std::int64_t>(at));
    text += '\n';
    for (const std::string& step : steps) {
        text += inLine(step) + '\n';
    }
    return sealedSteps(title, text);
}

std::optional<StoredSteps> StoredSteps::of(std::string_view text, ShipClass& ship) {
    if (text.size() > mostBytes) {
        return std::nullopt;
    }
    const std::optional<std::string_view> whole = linesOfSteps(title, text);
    if (!whole) {
        return std::nullopt;
    }
    Lines lines(*whole);
    StoredSteps stored;
    stored.now.catalogue = ship.catalogueText();
    lines.require(lines.next("catalogue ") == fingerprint(stored.now.catalogue->text()));
    readNow(lines, stored.now);
    const std::vector<std::int64_t> at = lines.numbers("at");
    while (std::optional<std::string> step = lines.nextBytes()) {
        if (stored.steps.size() == 2 * most) {
            return std::nullopt;
        }
        stored.steps.push_back(*std::move(step));
    }
    lines.require(at.size() == 1 && at[0] >= 0 && at[0] <= std::ssize(stored.steps));
    if (!lines.isWell()) {
        return std::nullopt;
    }
    stored.at = static_cast<std::size_t>(at[0]);
    const ShipState before = ship.state();
    std::size_t moments = 0;
    stored.goTo([&](const DesignMoment& moment) {
        if (canBe(moment)) {
            ship.restore(moment.ship);
            moments += ship.isWorkedOut() ? 1U : 0U;
        }
        return false;
    });
    ship.restore(before);
    return moments == stored.steps.size() + 2 ? std::optional(std::move(stored)) : std::nullopt;
}

}  // namespace fleetwright
