#include "fuzz/FuzzFile.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  TVR::Fuzz::startApplication(argc, argv);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  TVR::Fuzz::readAndWrite(bytes, size, ".tvr");
  return 0;
}
