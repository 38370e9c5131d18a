#include "FormulaReader.h"

#include "decimals.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace fleetwright {

/// The first digit of an operator's number says how tight it binds.
enum class FormulaReader::Operator : std::uint8_t {
    Or = 0x00,
    And = 0x10,
    Equal = 0x20,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Add = 0x30,
    Subtract,
    Multiply = 0x40,
    Divide,
    Remainder
};

/// A name or word: its letters folded and packed into one number, so that looking it up is one
/// comparison. The longest word of the language has eight letters.
struct FormulaReader::Word {
    std::uint64_t key;
    const char* end;
};

/// One more level of nesting, for as long as it lives.
class FormulaReader::Level {
public:
    explicit Level(FormulaReader& reader) : m_reader(reader) {
        if (++m_reader.m_levels > mostLevels) {
            m_reader.fail(Fault::TooDeep, m_reader.m_at);
        }
    }
    Level(const Level&) = delete;
    Level& operator=(const Level&) = delete;
    ~Level() { --m_reader.m_levels; }

private:
    FormulaReader& m_reader;
};

namespace {

constexpr std::uint64_t key(const char* word) {
    std::uint64_t packed = 0;
    for (; *word != '\0'; ++word) {
        packed = packed << 8U | static_cast<unsigned char>(*word);
    }
    return packed;
}

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr bool isLetter(char c) {
    const char folded = static_cast<char>(c | 0x20);
    return folded >= 'a' && folded <= 'z';
}

/// Whether a word can hold a character, by its number.
constexpr auto wordCharacters = [] {
    std::array<bool, 256> table = {};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const char c = static_cast<char>(i);
        table[i] = isLetter(c) || isDigit(c) || c == '_';
    }
    return table;
}();

constexpr bool isWordCharacter(char c) {
    return wordCharacters[static_cast<unsigned char>(c)];
}

}  // namespace

double FormulaReader::read() {
    const double value = choice();
    if (*m_at != '\0') {
        fail(Fault::Unexpected, m_at);
    }
    return value;
}

/// condition ? value : value
double FormulaReader::choice() {
    const double condition = binary(0);
    if (*m_at != '?') {
        return condition;
    }
    const Level level(*this);
    moveTo(m_at + 1);
    const bool isTrue = condition != 0.0;
    m_unneeded += isTrue ? 0 : 1;
    const double ifTrue = choice();
    m_unneeded += isTrue ? 1 : -1;
    expect(':', Fault::ColonMissing);
    const double ifFalse = choice();
    m_unneeded -= isTrue ? 1 : 0;
    return isTrue ? ifTrue : ifFalse;
}

/// Operands joined by operators that bind as tight as `loosest` or tighter.
double FormulaReader::binary(int loosest) {
    double left = sign();
    while (peekOperator()) {
        const Operator op = m_operator;
        const int binding = static_cast<int>(op) >> 4;
        if (binding < loosest) {
            break;
        }
        m_at = m_behindOperator;
        m_behindOperator = nullptr;
        if (op == Operator::Or || op == Operator::And) {
            const bool isTrue = left != 0.0;
            const bool isDecided = isTrue == (op == Operator::Or);
            m_unneeded += isDecided ? 1 : 0;
            const double right = binary(binding + 1);
            m_unneeded -= isDecided ? 1 : 0;
            left = isDecided ? isTrue : right != 0.0;
        } else {
            left = combine(op, left, binary(binding + 1));
        }
    }
    return left;
}

double FormulaReader::combine(Operator op, double left, double right) {
    switch (op) {
    case Operator::Equal:
        return left == right;
    case Operator::NotEqual:
        return left != right;
    case Operator::Less:
        return left < right;
    case Operator::LessOrEqual:
        return left <= right;
    case Operator::Greater:
        return left > right;
    case Operator::GreaterOrEqual:
        return left >= right;
    case Operator::Add:
        return left + right;
    case Operator::Subtract:
        return left - right;
    case Operator::Multiply:
        return left * right;
    default:
        break;
    }
    if (right == 0.0) {
        m_dividesByZero = m_dividesByZero || m_unneeded == 0;
        return 0.0;
    }
    return op == Operator::Divide ? left / right : std::fmod(left, right);
}

/// Finds out which operator stands at the reading place, which is behind the blanks that follow an
/// operand, without taking it.
bool FormulaReader::peekOperator() {
    if (m_behindOperator != nullptr) {
        return true;  // found already, by a level that it was too loose for
    }
    const char next = *m_at == '\0' ? '\0' : m_at[1];
    const auto found = [this](Operator op, int length) {
        m_operator = op;
        m_behindOperator = m_at + length;
        return true;
    };
    switch (*m_at) {
    case '+':
        return found(Operator::Add, 1);
    case '-':
        return found(Operator::Subtract, 1);
    case '*':
        return found(Operator::Multiply, 1);
    case '/':
        return found(Operator::Divide, 1);
    case '%':
        return found(Operator::Remainder, 1);
    case '=':
        return found(Operator::Equal, next == '=' ? 2 : 1);
    case '!':
        return next == '=' && found(Operator::NotEqual, 2);
    case '<':
        if (next == '>') {
            return found(Operator::NotEqual, 2);
        }
        return next == '=' ? found(Operator::LessOrEqual, 2) : found(Operator::Less, 1);
    case '>':
        return next == '=' ? found(Operator::GreaterOrEqual, 2) : found(Operator::Greater, 1);
    case 'a':
    case 'A':
    case 'o':
    case 'O': {
        const Word word = peekWord();
        const int length = static_cast<int>(word.end - m_at);
        return (word.key == key("or") && found(Operator::Or, length)) ||
               (word.key == key("and") && found(Operator::And, length));
    }
    default:
        return false;
    }
}

double FormulaReader::sign() {
    skipBlanks();
    const char first = *m_at;
    if (first == '-' || first == '+') {
        const Level level(*this);
        moveTo(m_at + 1);
        const double value = sign();
        return first == '-' ? -value : value;
    }
    if (first == 'n' || first == 'N') {
        const Word word = peekWord();
        if (word.key == key("not")) {
            const Level level(*this);
            moveTo(word.end);
            return sign() == 0.0;
        }
    }
    return power();
}

double FormulaReader::power() {
    const double base = operand();
    skipBlanks();
    if (*m_at != '^') {
        return base;
    }
    const Level level(*this);
    moveTo(m_at + 1);
    return std::pow(base, sign());
}

double FormulaReader::operand() {
    skipBlanks();
    if (isDigit(*m_at)) {
        return readDecimal(m_at);
    }
    if (isLetter(*m_at)) {
        return name(peekWord());
    }
    if (*m_at != '(') {
        fail(Fault::OperandMissing, m_at);
        return 0.0;
    }
    const Level level(*this);
    moveTo(m_at + 1);
    const double value = choice();
    expect(')', Fault::ParenthesisOpen);
    return value;
}

double FormulaReader::name(const Word& word) {
    const auto value = [&](double argument) {
        moveTo(word.end);
        return argument;
    };
    switch (word.key) {
    case key("mass"):
        return value(m_arguments.mass);
    case key("hull"):
        return value(m_arguments.hull);
    case key("ftl"):
        return value(m_arguments.ftl);
    case key("thrust"):
        return value(m_arguments.thrust);
    case key("hullcost"):
        return value(m_arguments.hullCost);
    case key("amount"):
        return value(m_arguments.amount);
    default:
        return call(word);
    }
}

double FormulaReader::call(const Word& word) {
    double (*function)(double) = nullptr;
    bool isExtreme = false;
    switch (word.key) {
    case key("roundup"):
        function = roundUpWhole;
        break;
    case key("floor"):
        function = std::floor;
        break;
    case key("ceil"):
        function = std::ceil;
        break;
    case key("round"):
        function = std::nearbyint;
        break;
    case key("trunc"):
        function = std::trunc;
        break;
    case key("abs"):
        function = std::fabs;
        break;
    case key("min"):
    case key("max"):
        isExtreme = true;
        break;
    default:
        fail(Fault::UnknownName, m_at);
        return 0.0;
    }
    const Level level(*this);
    moveTo(word.end);
    expect('(', Fault::ArgumentsMissing);
    double value = choice();
    if (isExtreme) {
        value = extreme(value, word.key == key("max"));
    }
    if (*m_at == ';') {
        fail(Fault::ArgumentsTooMany, m_at);
    }
    expect(')', Fault::ParenthesisOpen);
    return isExtreme ? value : function(value);
}

/// The smallest or largest of `first` and the arguments that follow.
double FormulaReader::extreme(double first, bool largest) {
    double value = first;
    while (take(';')) {
        const double next = choice();
        value = largest ? std::max(value, next) : std::min(value, next);
    }
    return value;
}

/// The word at the reading place. One that is longer than any word of the language gets the key
/// 0, which is no word's.
FormulaReader::Word FormulaReader::peekWord() {
    std::uint64_t packed = 0;
    const char* end = m_at;
    for (; isWordCharacter(*end); ++end) {
        packed = packed << 8U | static_cast<unsigned char>(*end | 0x20);
    }
    return {end - m_at > 8 ? 0 : packed, end};
}

void FormulaReader::skipBlanks() {
    while (*m_at == ' ' || *m_at == '\t') {
        ++m_at;
    }
}

bool FormulaReader::take(char expected) {
    skipBlanks();
    if (*m_at != expected) {
        return false;
    }
    ++m_at;
    return true;
}

void FormulaReader::expect(char expected, Fault otherwise) {
    if (!take(expected)) {
        fail(otherwise, m_at);
    }
}

/// Goes on at `place`, which lies in the formula: after a fault, the reading place does not.
void FormulaReader::moveTo(const char* place) {
    if (m_fault == Fault::None) {
        m_at = place;
    }
}

void FormulaReader::fail(Fault fault, const char* place) {
    if (m_fault == Fault::None) {
        m_fault = fault;
        m_faultPlace = place;
        m_at = "";
        m_behindOperator = nullptr;
    }
}

}  // namespace fleetwright
