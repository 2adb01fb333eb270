#pragma once

#include "LikePattern.h"

#include <QString>

#include <memory>
#include <variant>
#include <vector>

namespace criteria {

// The tree of a criterion. Literals are held apart, by number, so that one tree serves all texts of a shape.

enum class Operator { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };

struct FieldName {
    QString table; ///< empty: any table that has the field
    QString field;
    int column = -1; ///< set by resolve()
};

struct LiteralNumber {
    int index;
    bool isText;
};

using Operand = std::variant<FieldName, LiteralNumber>;

struct Node;

struct Comparison {
    Operator op;
    Operand left;
    Operand right;
};
struct Like {
    Operand subject;
    LiteralNumber pattern;
    PatternKind kind;
    bool negated;
};
struct NullTest {
    Operand subject;
    bool negated;
};
struct Negation {
    std::unique_ptr<Node> operand;
};
/// All (or any) of at least two conditions.
struct Junction {
    enum class Kind { All, Any } kind;
    std::vector<Node> operands;
};

struct Node {
    std::variant<Comparison, Like, NullTest, Negation, Junction> content;
};

struct SelectColumn {
    bool all = false; ///< every column of `name.table`, or of all tables where that is empty
    FieldName name;
};

struct SelectStatement {
    bool distinct = false;
    std::vector<SelectColumn> columns;
    std::vector<QString> tables;
    std::unique_ptr<Node> where; ///< null: no condition
};

} // namespace criteria
