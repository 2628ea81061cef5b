// The discrete Fourier transform of a list: radix 2 in place (Cooley and Tukey, 1965) for 4 to 512 elements
// in powers of two, the direct sum for every other size.
#pragma once

#include "engine/records.h"

namespace zephyl {

// inverse: with the kernel exp(+2 pi i j k / n) and the factor 1/n. Parts of magnitude below 1e-12 become
// exactly 0. to and from are different records.
void fourier_transform(ListRecord& to, const ListRecord& from, bool inverse);

}  // namespace zephyl
