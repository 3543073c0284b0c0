// Marks what native C++ callers link against: the containers and the workers.
#pragma once

#if !defined(_WIN32)
#define KAV_API __attribute__((visibility("default")))
#elif defined(KAV_BUILDING)
#define KAV_API __declspec(dllexport)
#else
#define KAV_API __declspec(dllimport)
#endif
