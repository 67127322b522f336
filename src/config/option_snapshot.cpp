// Copies of the options' values, type by type.
#include "config/option_snapshot.h"

#include <algorithm>

namespace {

using Value = OptionSnapshot::Value;
using ColourBytes = OptionSnapshot::ColourBytes;

template <class T>
Value Take(const void* store) {
  return *static_cast<const T*>(store);
}

template <class T>
void Put(void* store, const Value& value) {
  *static_cast<T*>(store) = std::get<T>(value);
}

Value TakeColours(const void* store) {
  ColourBytes bytes;
  std::copy_n(static_cast<const uint8_t*>(store), bytes.size(), bytes.begin());
  return bytes;
}

void PutColours(void* store, const Value& value) {
  std::ranges::copy(std::get<ColourBytes>(value), static_cast<uint8_t*>(store));
}

struct TypeRow {
  Value (*take)(const void* store);
  void (*put)(void* store, const Value& value);
};

template <class T>
constexpr TypeRow kRowOf = {Take<T>, Put<T>};

// In the order of OptionType.
constexpr TypeRow kTypes[] = {
    kRowOf<Estring>, kRowOf<Westring>, kRowOf<int>, kRowOf<bool>, kRowOf<char>,
    kRowOf<int>,     kRowOf<int>,      kRowOf<int>, kRowOf<int>,  {TakeColours, PutColours},
};

const TypeRow& TypeOf(const OptionRow& row) { return kTypes[static_cast<int>(row.type)]; }

}  // namespace

OptionSnapshot::OptionSnapshot() : values(static_cast<size_t>(kOptionCount)) {
  for (size_t i = 0; i < values.size(); ++i) {
    const OptionRow& row = kOptionTable[i];
    if (row.store != nullptr) values[i] = TypeOf(row).take(row.store);
  }
}

void OptionSnapshot::Restore() const {
  for (size_t i = 0; i < values.size(); ++i) {
    const OptionRow& row = kOptionTable[i];
    if (row.store != nullptr) TypeOf(row).put(row.store, values[i]);
  }
}
