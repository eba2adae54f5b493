#include <iostream>

#include <velmora/Version.h>

int main() {
  std::cout << "velmora " << velmora::VelmoraVersionString << '\n';
  return 0;
}
