// The toolkit's life: made once on the first thread, before the console, and
// destroyed after it.
#pragma once

#include <memory>

class Toolkit {
 public:
  // Sets the locale and takes the toolkit's own options out of the arguments.
  // False from IsReady() means that there is no display.
  Toolkit(int& argc, char**& argv);
  ~Toolkit();
  bool IsReady() const { return main != nullptr; }

 private:
  struct Main;
  std::unique_ptr<Main> main;
};
