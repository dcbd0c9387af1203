/* tenk: algebra on very many small vectors and matrices, read and written where the caller keeps them. */
#ifndef TENK_H
#define TENK_H

#include "tenk/types.h"
/* Made by tools/generate; edit above this line or below the next. */
#include "tenk/add.h"
#include "tenk/copy.h"
#include "tenk/cross_product.h"
#include "tenk/det.h"
#include "tenk/dot_product.h"
#include "tenk/extract.h"
#include "tenk/frob_norm.h"
#include "tenk/gaxpy.h"
#include "tenk/invert.h"
#include "tenk/l2_norm.h"
#include "tenk/lcomb.h"
#include "tenk/load_identity.h"
#include "tenk/lu_back_subst.h"
#include "tenk/lu_decomp.h"
#include "tenk/mul.h"
#include "tenk/qr_back_subst.h"
#include "tenk/qr_decomp.h"
#include "tenk/saxpy.h"
#include "tenk/sub.h"
#include "tenk/trace.h"
#include "tenk/transpose.h"
/* End of what tools/generate makes. */

#endif
