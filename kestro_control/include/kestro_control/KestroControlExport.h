#pragma once

#if defined(_WIN32)
#if defined(KESTRO_CONTROL_BUILDING_LIBRARY)
#define KESTRO_CONTROL_API __declspec(dllexport)
#else
#define KESTRO_CONTROL_API __declspec(dllimport)
#endif
#else
#define KESTRO_CONTROL_API __attribute__((visibility("default")))
#endif
