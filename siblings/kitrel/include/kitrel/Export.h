// The export mark of Kitrel10-9.dll; empty where the library is linked statically.
#pragma once

#if defined(_WIN32) && !defined(KITREL_STATIC)
#ifdef KITREL_BUILDING_LIBRARY
#define KITREL_API __declspec(dllexport)
#else
#define KITREL_API __declspec(dllimport)
#endif
#else
#define KITREL_API
#endif
