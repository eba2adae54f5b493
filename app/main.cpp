#include <algorithm>
#include <csignal>
#include <iostream>

#include <app/Run.h>

int main(int count, char** values) {
  std::signal(SIGPIPE, SIG_IGN);  // a closed output is an exit status, not a death
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  return velmora::app::run({values + std::min(count, 1), values + count}, std::cin, std::cout, std::cerr);
}
