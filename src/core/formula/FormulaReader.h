#pragma once

#include <cstdint>

namespace fleetwright {

/// The numbers that a formula can name.
struct FormulaArguments {
    double mass, hull, ftl, thrust, hullCost, amount;
};

/// Reads a formula and works out its value in the same pass, without any allocation.
///
/// The functions stand for the levels of the language, from the loosest binding (`?:`) to the
/// tightest (`^`); `binary` has those of all operators between two values. Parts that a choice,
/// `and` or `or` does not need are read like all others; they only cannot divide by zero. The first
/// fault moves the reading place to an empty text, so that every function comes to its end at once.
class FormulaReader {
public:
    enum class Fault {
        None,
        OperandMissing,
        UnknownName,
        ParenthesisOpen,
        ArgumentsMissing,
        ArgumentsTooMany,
        ColonMissing,
        Unexpected,
        TooDeep
    };

    /// Levels that parentheses, functions, signs, `?:` and `^` may nest.
    static constexpr int mostLevels = 64;

    /// `text` ends at its first zero and outlives the reader.
    FormulaReader(const char* text, const FormulaArguments& arguments)
        : m_at(text), m_arguments(arguments) {}

    /// The formula's value before rounding. Means nothing if there is a fault.
    double read();

    Fault fault() const { return m_fault; }
    /// Where the fault is, within the text; what follows there is not understood.
    const char* faultPlace() const { return m_faultPlace; }
    /// Whether a division by zero counts for the value.
    bool dividesByZero() const { return m_dividesByZero; }

private:
    enum class Operator : std::uint8_t;
    struct Word;
    class Level;

    double choice();
    double binary(int loosest);
    double sign();
    double power();
    double operand();
    double name(const Word& word);
    double call(const Word& word);
    double extreme(double first, bool largest);

    double combine(Operator op, double left, double right);
    bool peekOperator();
    Word peekWord();
    void skipBlanks();
    bool take(char expected);
    void expect(char expected, Fault otherwise);
    void moveTo(const char* place);
    void fail(Fault fault, const char* place);

    const char* m_at;
    FormulaArguments m_arguments;
    const char* m_faultPlace = nullptr;
    const char* m_behindOperator = nullptr;
    int m_levels = 0;
    int m_unneeded = 0;  // how many choices around this place have gone another way
    Operator m_operator{};
    Fault m_fault = Fault::None;
    bool m_dividesByZero = false;
};

}  // namespace fleetwright
