#pragma once

#include "Criterion.h"
#include "Value.h"

#include <QStringView>

#include <optional>
#include <vector>

namespace criteria {

/// One field of one row, as the evaluator reads it.
struct CellView {
    enum class Kind { Null, Integer, Real, Text } kind = Kind::Null;
    qint64 integer = 0;
    double real = 0;
    QStringView text;

    static CellView ofInteger(qint64 number) { return {Kind::Integer, number, 0, {}}; }
    static CellView ofReal(double number) { return {Kind::Real, 0, number, {}}; }
    static CellView ofText(QStringView text) { return {Kind::Text, 0, 0, text}; }
};

/// A row that can be asked for its columns.
class RowView {
public:
    virtual ~RowView() = default;
    [[nodiscard]] virtual CellView cell(int column) const = 0;
};

/// Judges rows that are held in memory, by the rules that the compiled SQL follows: Null makes a condition
/// neither true nor false, and only what is true matches.
class Evaluator {
public:
    /// The tree has to be resolved and to outlive the evaluator. Patterns are compiled here (error 93).
    Evaluator(const Node& tree, std::vector<dao::Value> literals);

    [[nodiscard]] bool matches(const RowView& row) const { return truth(m_tree, row) == Truth::True; }

private:
    enum class Truth { False, Unknown, True };

    [[nodiscard]] Truth truth(const Node& node, const RowView& row) const;
    [[nodiscard]] Truth comparison(const Comparison& c, const RowView& row) const;
    [[nodiscard]] Truth like(const Like& l, const RowView& row) const;
    [[nodiscard]] Truth junction(const Junction& j, const RowView& row) const;
    [[nodiscard]] CellView cell(const Operand& operand, const RowView& row) const;
    void compilePatterns(const Node& node);
    static Truth truthOf(bool value) { return value ? Truth::True : Truth::False; }
    static Truth negated(Truth t);

    const Node& m_tree;
    std::vector<dao::Value> m_literals;
    std::vector<QString> m_texts;                       ///< of the literals
    std::vector<std::optional<LikePattern>> m_patterns; ///< by literal
};

} // namespace criteria
