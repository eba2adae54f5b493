#include <benchmark/benchmark.h>

#include <memory>

#include <velmora/platform/ui/LayoutConstraint.h>
#include <velmora/platform/ui/View.h>

namespace velmora::bench {
namespace {

using Edge = LayoutAttribute;

constexpr int rowCount = 1000;
constexpr double width = 390, rowHeight = 80;

std::shared_ptr<LayoutConstraint> equality(View& first, Edge edge, View& second, Edge otherEdge) {
  return std::make_shared<LayoutConstraint>(first, edge, LayoutRelation::equal, &second, otherEdge, 0);
}

/// Rows of that height one under the other, each as wide as the view that holds them, not laid out yet.
std::shared_ptr<View> stackedRows() {
  auto holder = std::make_shared<View>();
  holder->setFrame({0, 0, width, rowCount * rowHeight});
  View* above = holder.get();
  for (int i = 0; i < rowCount; ++i) {
    const auto row = std::make_shared<View>();
    row->setFrame({0, 0, width, rowHeight});
    holder->addSubview(row);
    LayoutConstraint::activate({equality(*row, Edge::leading, *holder, Edge::leading),
                                equality(*row, Edge::trailing, *holder, Edge::trailing),
                                equality(*row, Edge::top, *above, i == 0 ? Edge::top : Edge::bottom)});
    above = row.get();
  }
  return holder;
}

void thousandRowsMadeAndLaidOut(benchmark::State& state) {
  for (auto _ : state) stackedRows()->layoutSubviews();
}
BENCHMARK(thousandRowsMadeAndLaidOut)->Unit(benchmark::kMillisecond);

void thousandRowsLaidOutAgain(benchmark::State& state) {
  const auto holder = stackedRows();
  holder->layoutSubviews();
  double change = 0;
  for (auto _ : state) {
    change = 1 - change;
    holder->setFrame({0, 0, width + change, rowCount * rowHeight});
    holder->layoutSubviews();
  }
}
BENCHMARK(thousandRowsLaidOutAgain)->Unit(benchmark::kMillisecond);

void thousandRowsUnchanged(benchmark::State& state) {
  const auto holder = stackedRows();
  holder->layoutSubviews();
  for (auto _ : state) holder->layoutSubviews();
}
BENCHMARK(thousandRowsUnchanged)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velmora::bench
