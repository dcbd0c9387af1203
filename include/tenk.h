/* tenk: algebra on very many small vectors and matrices, read and written where the caller keeps them. */
#ifndef TENK_H
#define TENK_H

#include "tenk/types.h"
/* Made by tools/generate; edit above this line or below the next. */
#include "tenk/copy.h"
#include "tenk/extract.h"
#include "tenk/load_identity.h"
#include "tenk/transpose.h"
/* End of what tools/generate makes. */

#endif
