#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace [[gnu::visibility("hidden")]] velmora {

/// A sum of variables, each with its coefficient, and a constant. A variable is known by its number.
struct LinearExpression {
  struct Term {
    std::size_t variable;
    double coefficient;
  };

  LinearExpression(double value) : constant(value) {}  // NOLINT: a number is an expression
  static LinearExpression variable(std::size_t number);

  std::vector<Term> terms;  ///< a variable may occur more than once
  double constant = 0;
};

LinearExpression operator+(LinearExpression a, const LinearExpression& b);
LinearExpression operator-(LinearExpression a, const LinearExpression& b);
LinearExpression operator*(LinearExpression a, double factor);

/// Solves linear equations that are added one by one, the most important first (Gauss-Jordan elimination).
/// An equation that contradicts the ones before it gives way to them, so any list of equations has an answer.
class ConstraintSolver {
 public:
  /// For the variables 0 .. variableCount − 1.
  explicit ConstraintSolver(std::size_t variableCount) : _rows(variableCount) {}

  /// Demands that the expression be zero. Answers whether that said something new: false where it follows
  /// from the equations before it, contradicts them, or holds a number that is not finite.
  bool add(const LinearExpression& zero);

  /// The variable's value; none while the equations leave it open.
  std::optional<double> value(std::size_t variable) const;

 private:
  // The coefficients of all variables, then the constant; together they are zero.
  using Row = std::vector<double>;

  Row reduced(const LinearExpression& expression) const;

  // At each solved variable the one row in which it occurs, with coefficient 1; an open variable has no row.
  std::vector<Row> _rows;
};

}  // namespace velmora
