#pragma once
// The people of a case as the program keeps them between fills.

#include <array>
#include <string>

#include "model/tp_info_rec.h"

namespace lw {

struct TaxpayerMemory {
    // Rows TP1, TP2, OP1..OP7: slot, Text1 index of the birth date, Text2 index of the age.
    std::array<std::array<std::string, 3>, 9> personTable{};
    // The two taxpayers as the last Load TP read them. A person the store lacks keeps the parts parsed
    // from the block read before, for as long as the program runs.
    TPInfoRec taxpayer1;
    TPInfoRec taxpayer2;
};

}  // namespace lw
