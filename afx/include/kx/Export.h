// How symbols of the framework DLL are exported and imported; empty in native builds.
#pragma once

#if defined(_WIN32) && !defined(KXAFX_STATIC)
#if defined(KXAFX_BUILDING_LIBRARY)
#define KXAFX_API __declspec(dllexport)
#else
#define KXAFX_API __declspec(dllimport)
#endif
#else
#define KXAFX_API
#endif
