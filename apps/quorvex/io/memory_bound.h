// How much memory a run of the tool may take.
#pragma once

namespace quorvex {

/// Has calculations fail that would need more than so many bytes together with all that the process
/// holds already.
void Bound_Memory(double bytes);

/// Half of what the machine has, and no more than two gigabytes: a formula that needs as much was
/// hardly meant.
double Usual_Memory_Bound();

/// Bytes of memory that the process holds, and that the machine has.
double Used_Memory();
double Memory_Of_Machine();

}  // namespace quorvex
