#pragma once

namespace bench {

// The processor time that the calling thread has used, in microseconds. What
// other programs do on the machine does not count.
double threadMicroseconds();

// What a measurement of nothing gives, the median of many.
double clockOverhead();

} // namespace bench
