// Commands with macros: any text, any names, any answers.
#include <cstdlib>

#include "foundation/environment.h"
#include "fuzz/any_macros.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
  static char directory[] = "/tmp/orvane.XXXXXX";
  static const bool isReady = mkdtemp(directory) != nullptr;
  if (!isReady) std::abort();
  Variables.Set("TMP", directory);
  AnyMacros(bytes, size).Check();
  return 0;
}
