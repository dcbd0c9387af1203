// QRDecomp: the fixed orders, and general order.
#include "factors.h"

template <bool general>
using Decompose = bench::Decompose<bench::QR, general>;

void registerAll()
{
    bench::gridAndGeneralOrders<Decompose>();
}
