// QRBackSubst: the fixed orders, and general order; a factor for each right-hand side, and one for all.
#include "factors.h"

template <bool general>
using Mava = bench::Solve<bench::QR, general, false>;
template <bool general>
using Mva = bench::Solve<bench::QR, general, true>;

void registerAll()
{
    bench::gridAndGeneralOrders<Mava>();
    bench::gridAndGeneralOrders<Mva>();
}
