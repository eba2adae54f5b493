#include <algorithm>
#include <iostream>

#include <app/program/Run.h>
#include <app/program/posix/Process.h>

int main(int count, char** values) {
  velmora::app::prepareProcess();
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  return velmora::app::run({values + std::min(count, 1), values + count}, std::cin, std::cout, std::cerr);
}
