#ifndef VARNEL_CONTRACTS_EXPORT_H
#define VARNEL_CONTRACTS_EXPORT_H

#if defined(_WIN32) && defined(VARNEL_SHARED)
#ifdef VARNEL_BUILDING
#define VARNEL_EXPORT __declspec(dllexport)
#else
#define VARNEL_EXPORT __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define VARNEL_EXPORT __attribute__((visibility("default")))
#else
#define VARNEL_EXPORT
#endif

#endif
