// Which symbols the shared library shows. Everything else stays inside it. A static library has
// nothing to import from, so its users define QUORVEX_STATIC as it was built.
#pragma once

#if defined(QUORVEX_STATIC)
#define QUORVEX_API
#elif defined(_WIN32) && defined(QUORVEX_BUILDING)
#define QUORVEX_API __declspec(dllexport)
#elif defined(_WIN32)
#define QUORVEX_API __declspec(dllimport)
#else
#define QUORVEX_API __attribute__((visibility("default")))
#endif
