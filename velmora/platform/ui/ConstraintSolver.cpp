#include <velmora/platform/ui/ConstraintSolver.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

// Coefficients are near 1; what elimination leaves of one that cancels is far below this.
constexpr double kNegligible = 1e-9;

bool isNegligible(double coefficient) { return std::abs(coefficient) < kNegligible; }

bool isFinite(const std::vector<double>& row) {
  return std::all_of(row.begin(), row.end(), [](double number) { return std::isfinite(number); });
}

// Takes the variable out of the row with the help of its solved row, in which its coefficient is 1.
void eliminate(std::vector<double>& row, std::size_t variable, const std::vector<double>& solved) {
  const double factor = row[variable];
  if (factor == 0) return;
  for (std::size_t i = 0; i < row.size(); ++i) row[i] -= factor * solved[i];
  row[variable] = 0;
}

}  // namespace

LinearExpression LinearExpression::variable(std::size_t number) {
  LinearExpression expression(0);
  expression.terms.push_back({number, 1});
  return expression;
}

LinearExpression operator+(LinearExpression a, const LinearExpression& b) {
  a.terms.insert(a.terms.end(), b.terms.begin(), b.terms.end());
  a.constant += b.constant;
  return a;
}

LinearExpression operator-(LinearExpression a, const LinearExpression& b) { return std::move(a) + b * -1; }

LinearExpression operator*(LinearExpression a, double factor) {
  for (auto& term : a.terms) term.coefficient *= factor;
  a.constant *= factor;
  return a;
}

ConstraintSolver::Row ConstraintSolver::reduced(const LinearExpression& expression) const {
  Row row(_rows.size() + 1);
  for (const auto& term : expression.terms) row[term.variable] += term.coefficient;
  row.back() = expression.constant;
  for (const auto& term : expression.terms) {
    if (!_rows[term.variable].empty()) eliminate(row, term.variable, _rows[term.variable]);
  }
  return row;
}

bool ConstraintSolver::add(const LinearExpression& zero) {
  Row row = reduced(zero);
  const auto constant = row.end() - 1;
  const auto largest =
      std::max_element(row.begin(), constant, [](double a, double b) { return std::abs(a) < std::abs(b); });
  if (!isFinite(row) || largest == constant || isNegligible(*largest)) return false;

  const auto variable = static_cast<std::size_t>(largest - row.begin());
  for (const double divisor = *largest; double& number : row) number /= divisor;
  for (Row& other : _rows) {
    if (!other.empty()) eliminate(other, variable, row);
  }
  _rows[variable] = std::move(row);
  return true;
}

std::optional<double> ConstraintSolver::value(std::size_t variable) const {
  const Row& row = _rows[variable];
  if (row.empty() || !std::isfinite(row.back())) return std::nullopt;
  const auto occurring = std::count_if(row.begin(), row.end() - 1, [](double c) { return !isNegligible(c); });
  if (occurring > 1) return std::nullopt;  // it depends on an open variable
  return 0 - row.back();                   // zero without a sign
}

}  // namespace velmora
