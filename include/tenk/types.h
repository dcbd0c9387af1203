/* tenk: statuses, the library record and what every header needs. */
#ifndef TENK_TYPES_H
#define TENK_TYPES_H

#include <stdint.h>

#if defined(__GNUC__)
#define TENK_API __attribute__((visibility("default")))
#else
#define TENK_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/*
 * The result of every function but tenkGetLibVersion.
 *
 * A function tests its arguments in a fixed order and stops at the first failure; nothing has been written then,
 * unless the comment of its family says otherwise:
 *
 *   1. a main pointer is null                                                  tenkNullPointerError
 *   2. a size is zero, or sizes do not agree (functions with size arguments)   tenkSizeError
 *   3. an entry of a table of pointers is null (_P and _PS2 with an array),
 *      also when count is 0                                                    tenkNullPointerError
 *   4. count is 0                                                              tenkOk
 *   5. an entry of a list is null (_L and _LS2), tested object by object:
 *      the objects before it have been written and stay so                     tenkNullPointerError
 *   6. an entry of a table of a single object is null (_P without an array),
 *      tested as the computation reaches it: what was written before stays     tenkNullPointerError
 */
typedef int32_t tenkStatus;

enum {
    tenkOk = 0,
    tenkSizeError = -6,        /* a size is zero, or the sizes of the operands do not agree */
    tenkNullPointerError = -8, /* a pointer argument, or an entry of a table or list, is null */
    tenkSingularError = -10    /* a matrix is singular within the tolerance of its family */
};

/* What tenkGetLibVersion tells about the library. The names are those of the generic build. */
typedef struct tenkLibraryRecord {
    int32_t versionMajor;
    int32_t versionMinor;
    int32_t buildMajor;
    int32_t buildMinor;
    char cpuTag[4];
    const char *libraryName;
    const char *versionText;
    const char *buildDateText;
} tenkLibraryRecord;

/* The address of the one record of the library: the same on every call, never null, not to be freed. */
TENK_API const tenkLibraryRecord *tenkGetLibVersion(void);

#ifdef __cplusplus
}
#endif

#endif
