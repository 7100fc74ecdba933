#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>

// What every fuzz target shares: a GUI application on the offscreen platform
// that lives for the whole process, and a message handler that keeps the
// fuzzer's output to what matters.
namespace FuzzSupport {

// Call from LLVMFuzzerInitialize. Idempotent.
void initApplication(const char* name);

// The input as a QByteArray without a copy, or a null array when it is too
// large for one.
QByteArray bytes(const uint8_t* data, size_t size);

// Ends the process the way the fuzzer notices: an input broke a promise the
// code under test makes.
[[noreturn]] void fail(const char* what);

} // namespace FuzzSupport
