// Commands with macros: any text, any names, any answers.
#include "foundation/environment.h"
#include "fuzz/any_macros.h"
#include "unit/scratch_directory.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
  static const ScratchDirectory temporary;
  Variables.Set("TMP", temporary.Path().c_str());
  AnyMacros(bytes, size).Check();
  return 0;
}
