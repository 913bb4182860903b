// Everything that a program using the library needs: the public class, its catalogue, the values
// that go in and out, and the platform underneath.
//
// Threads. Any number of instances of the class may be made and used in any number of threads at
// any time, and several threads may use one, since instances keep nothing of their own: every
// method that calculates; `SetExcelApp`; `Invoke`, `Catalogue` and `Find_Method`; the conversions;
// `Default_MaxSD` and `Set_Default_MaxSD`. The default limit and the host are those of the process,
// and guarded: a call sees the one before or the one after. Each call runs in the thread that made
// it, and in no other. Values are the caller's: no two threads may use one while either changes it,
// and a method changes those that it takes by reference.
//
// All else belongs to one thread, that of the host: `qvxABOUT`, the forms and what else is in
// quorvex/shell, and running what timers are due. On Windows the timer that describes the functions
// to a host goes off in the thread that made the first instance. Parts of `Current_Platform` are
// replaced before other threads calculate. Those put there must bear being asked by several threads
// at once where several calculate or make instances; those of the library do, but for `Deadline`.
#pragma once

#include "frame/catalogue.h"
#include "frame/class/cls_Quorvex.h"
#include "host/conversions.h"
#include "host/deadline.h"
#include "host/host_value.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "quorvex_version.h"
