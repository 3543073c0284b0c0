// The table of one instruction set. Compiled once for each, as product.cpp is.

#include "kernels/isa/functions.h"

namespace kav::kernels::KAV_ISA {

extern const Table table;
const Table table = {KAV_ISA_NAME,
                     product,
                     transpose,
                     columnMoments,
                     static_cast<int>(kPairVectors* kLanes),
                     pairMoments,
                     static_cast<int>(kSideVectors* kLanes),
                     subtractRows,
                     backSubstitute,
                     eliminate,
                     static_cast<int>(kReflectVectors* kLanes),
                     reflect,
                     static_cast<int>(kRotateVectors* kLanes),
                     rotate,
                     rankTwo,
                     columnSums,
                     updateColumns,
                     sweep,
                     static_cast<int>(kDistanceVectors* kLanes),
                     distances};

}  // namespace kav::kernels::KAV_ISA
