// LUDecomp: the fixed orders, and general order.
#include "factors.h"

template <bool general>
using Decompose = bench::Decompose<bench::LU, general>;

void registerAll()
{
    bench::gridAndGeneralOrders<Decompose>();
}
