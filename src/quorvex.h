// Everything that a program using the library needs: the public class, its catalogue, the values
// that go in and out, and the platform underneath.
#pragma once

#include "frame/catalogue.h"
#include "frame/class/cls_Quorvex.h"
#include "host/conversions.h"
#include "host/host_value.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "quorvex_version.h"
