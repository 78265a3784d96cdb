// How a class of the library is exported: whole, with OXA_API behind the word class.
#pragma once

#if !defined(_WIN32)
#define OXA_API
#elif defined(OXA_BUILDING_LIBRARY)
#define OXA_API __declspec(dllexport)
#else
#define OXA_API __declspec(dllimport)
#endif
