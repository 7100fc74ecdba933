#!/usr/bin/env bash
# Builds Keystage with AddressSanitizer and UndefinedBehaviorSanitizer in
# build-asan/ and runs every test there, the same way scripts/test.sh does.
# Extra arguments go to ctest, e.g. scripts/test-sanitizers.sh -R tst_settings
# Any memory error, leak or undefined behaviour fails the test it happens in.
export KEYSTAGE_BUILD_DIR=${KEYSTAGE_ASAN_BUILD_DIR:-$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build-asan}
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
ensure_packages
# Built to be checked, not debugged: -O1 and line tables keep the build short
# and the reports readable. The benchmarks are not needed for the tests.
build -DKEYSTAGE_ASAN=ON -DKEYSTAGE_BENCHMARKS=OFF -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O1 -g1 -DNDEBUG"

# Tests that feed Qt forged sizes set allocator_may_return_null=1 for
# themselves (tests/CMakeLists.txt, keystage_expects_bad_alloc).
export ASAN_OPTIONS="detect_leaks=1:check_initialization_order=1:strict_init_order=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export LSAN_OPTIONS="suppressions=$ROOT/tests/lsan.supp:print_suppressions=0"
cd "$BUILD_DIR"
# No test may wait for input or a display it was not given.
export QT_QPA_PLATFORM=offscreen
exec ctest --output-on-failure --parallel "$(nproc)" --timeout 600 "$@" </dev/null
