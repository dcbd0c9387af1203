// The model: every call told once more, as plainly as it can be said, to compare the library with.
//
// A behaviour is a function of a Call and a Memory that does what the call does and returns its status. It
// works at the caller's real addresses: the driver (model_test.cpp) lets it run first, notes what it did,
// puts the memory back, calls the library on the same addresses and compares status and every byte. Nothing
// is vectorised, nothing is shared with the library, and nothing is clever.
//
// How to add a family:
//
//   1. Write one file, saxpy.cpp. It needs "frame.h" (statuses, usual tests, Wide, estimates; brings call.h
//   and
//      memory.h) and "registry.h". It opens with what the family computes, then names the members that stand
//      apart, each as a predicate on the Name with a sentence on what is different.
//   2. Tell the members in a template over the element type:
//
//          template <typename T>
//          struct Saxpy {
//              static std::int32_t run(const Call& call, Memory& memory)
//              {
//                  const Operand src1 = call.operand("src1"), src2 = call.operand("src2"), dst =
//                  call.operand("dst"); if (nullArgument(call))
//                      return nullPointerError;
//                  if (zeroSize(call))
//                      return sizeError;
//                  if (nullInTables(call, memory, {&src1, &src2, &dst}))   // array functions only
//                      return nullPointerError;
//                  const T value = call.value<T>();
//                  for (std::uint32_t k = 0; k < call.count(); ++k) {
//                      if (nullInLists(memory, k, {&src1, &src2, &dst}))
//                          return nullPointerError;
//                      for (std::uint32_t j = 0; j < call.size("length"); ++j) {
//                          if (src1.nullEntry(memory, j) || ...)           // single _P: as each element is
//                          reached
//                              return nullPointerError;
//                          const T product = memory.load<T>(src1.element(memory, k, j)) * value;
//                          const T sum = product + memory.load<T>(src2.element(memory, k, j));
//                          memory.store(dst.element(memory, k, j), sum);
//                      }
//                  }
//                  return ok;
//              }
//          };
//
//   3. Enter it with one line at namespace scope: `const Family family(Root::Saxpy, &byType<Saxpy>);`. Where
//   a root is
//      told in several files, give a function that returns null for the names of the others:
//      `Behaviour of(const Name& name) { return name.codes[0].kind == 'v' ? byType<Sum>(name) : nullptr; }`.
//
// Every load and store goes through Memory, also those of pointer table entries (Operand does that) and of
// rowIndex. How a store is stated decides how it is compared:
//
//     storeBits(a, word)          these bits: moves, constants, indices
//     store(a, x)                 result of an operation: these bits, or any NaN for a NaN
//     storeSignOpen(a, x)         the same, the sign of a zero being open
//     storeWithin(a, x, bound)    no farther than `bound` from x, where the order of a sum is open
//     leaveOpen(a, bytes)         scratch or undefined: the library may do there what it likes
//     mayRead(a, bytes)           the library may read there although the model does not
//
// Loads and stores count in the order in which they are made, which shows when operands overlap. A member
// that makes no such promise says memory.setOrder(Memory::Order::readsOpen) or open; calls in which it shows
// are then not compared.
//
// A behaviour that finds the outcome open (a value known only within a bound decides about a branch) throws
// Undecided{"why"}; the driver then draws another call. Reading back a place stored with a bound or left open
// does so by itself. An access outside the memory throws OutOfMemory, and the call is drawn anew as well. A
// family for which most draws end like that, or whose calls need special values or sizes, says so in
// manners.cpp.
#pragma once

#include "call.h"
#include "frame.h"
#include "interface.h"
#include "memory.h"
#include "name.h"
#include "registry.h"
