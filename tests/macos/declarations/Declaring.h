// Lets the same declarations be read by clang, which checks nullability, and by GCC, which knows
// none.
#pragma once

#ifdef __clang__
#define QUILLET_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define QUILLET_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#define QUILLET_MACOS(version) __attribute__((availability(macos, introduced = version)))
#else
#define QUILLET_ASSUME_NONNULL_BEGIN
#define QUILLET_ASSUME_NONNULL_END
#define QUILLET_MACOS(version)
#define _Nullable
#define _Nonnull
#endif
