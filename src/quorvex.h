// Everything that a program using the library needs: the public class, its catalogue, the values
// that go in and out, and the platform underneath.
//
// Threads. These may run at any time in any number of threads: every method that calculates, on
// one instance of the class or on several, since instances keep nothing of their own; `Invoke`,
// `Catalogue` and `Find_Method`; the conversions; `Default_MaxSD` and `Set_Default_MaxSD`. Values
// are the caller's: no two threads may use one while either changes it, and a method changes those
// that it takes by reference.
//
// All else belongs to one thread, that of the host: making an instance, `SetExcelApp`, `qvxABOUT`,
// the forms and what else is in quorvex/shell, and running what timers are due. Parts of
// `Current_Platform` are replaced before other threads calculate. Those put there must bear being
// asked by several threads at once where several calculate; those of the library do, but for
// `Deadline`.
#pragma once

#include "frame/catalogue.h"
#include "frame/class/cls_Quorvex.h"
#include "host/conversions.h"
#include "host/deadline.h"
#include "host/host_value.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "quorvex_version.h"
