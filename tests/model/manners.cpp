#include "manners.h"

#include "add_sub_matrix.h"
#include "block_sum.h"

namespace model {

Manners mannersOf(const Name& name)
{
    Manners manners;
    switch (name.root) {
    case Root::Add:
    case Root::Sub:
        // With disagreeing alignments any number may stand in for an element, and elements that a result
        // leaves out may be added all the same.
        manners.flagsOpen = name.codes[0].kind == 'm' && (arrangesSingleByItsAlignment(name) ||
                                                          repeatsRowTwo(name) || permutesPlaces(name));
        break;
    case Root::LoadIdentity:
        manners.signedSizes = true;
        manners.loosePercent = 60; // short strides are what this family looks at
        manners.moreRounds = 8;
        break;
    case Root::Copy:
    case Root::Extract:
        manners.moreRounds = 4;
        break;
    case Root::Det:
    case Root::LUDecomp:
    case Root::LUBackSubst:
        // Objects behind one that is singular may have been computed along with it.
        manners.flagsOpen = name.root == Root::LUDecomp && name.anyArray() && isShortKernel(name);
        manners.largestSize = 8;
        manners.largeSizes = false;
        manners.plainPercent = 60;
        break;
    case Root::FrobNorm:
        // The short kernels may add the squares in any order, and those of order 3 square a number beside
        // each row.
        manners.flagsOpen = isShortKernel(name);
        break;
    case Root::Invert:
        manners.largestSize = 6;
        manners.largeSizes = false;
        manners.plainPercent = 60;
        // How the cofactors of the fixed orders are formed is open.
        manners.flagsOpen = !name.general();
        break;
    case Root::QRDecomp:
    case Root::QRBackSubst:
        manners.flagsOpen = name.root == Root::QRDecomp && name.anyArray() && isShortKernel(name);
        manners.largestSize = 8;
        manners.largeSizes = false;
        manners.tall = true;
        manners.plainPercent = 60;
        break;
    default:
        break;
    }
    return manners;
}

} // namespace model
