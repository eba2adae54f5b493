#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <latch>
#include <string>
#include <thread>
#include <vector>

namespace velmora::test {

inline constexpr std::size_t threadCount = 4;

/// Runs `work` with the numbers 0, 1 ... in as many threads, which begin at the same moment.
template <class Work>
void runTogether(std::size_t count, Work work) {
  std::latch everybody(static_cast<std::ptrdiff_t>(count));
  std::vector<std::thread> threads;
  for (std::size_t number = 0; number < count; ++number) {
    threads.emplace_back([&everybody, &work, number] {
      everybody.arrive_and_wait();
      work(number);
    });
  }
  for (std::thread& thread : threads) thread.join();
}

/// Several threads ask all questions together, every other one from the last question back to the first. They
/// do so before the calling thread asks, so that whatever is made on first use is made by them.
template <class Question, class Answer>
void expectAnswersOfOneThread(const std::vector<Question>& questions, Answer answer) {
  std::vector<std::vector<std::string>> answers(threadCount, std::vector<std::string>(questions.size()));
  runTogether(threadCount, [&](std::size_t thread) {
    for (std::size_t step = 0; step < questions.size(); ++step) {
      const std::size_t i = thread % 2 == 0 ? step : questions.size() - 1 - step;
      answers[thread][i] = answer(questions[i]);
    }
  });

  for (std::size_t i = 0; i < questions.size(); ++i) {
    const std::string alone = answer(questions[i]);
    EXPECT_FALSE(alone.empty()) << "question " << i;
    for (const auto& ofThread : answers) EXPECT_EQ(ofThread[i], alone) << "question " << i;
  }
}

}  // namespace velmora::test
