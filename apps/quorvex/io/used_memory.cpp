#include <unistd.h>

#include <fstream>

#include "io/memory_bound.h"

namespace quorvex {

double Used_Memory() {
  std::ifstream pages("/proc/self/statm");
  double all = 0;
  double resident = 0;
  pages >> all >> resident;
  return resident * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

double Memory_Of_Machine() {
  return static_cast<double>(::sysconf(_SC_PHYS_PAGES)) *
         static_cast<double>(::sysconf(_SC_PAGESIZE));
}

}  // namespace quorvex
