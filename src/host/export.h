// Which symbols the shared library shows. Everything else stays inside it.
#pragma once

#if defined(_WIN32) && defined(QUORVEX_BUILDING)
#define QUORVEX_API __declspec(dllexport)
#elif defined(_WIN32)
#define QUORVEX_API __declspec(dllimport)
#else
#define QUORVEX_API __attribute__((visibility("default")))
#endif
