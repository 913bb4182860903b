// Values of the office as values of the engine, and back.
//
// | arrives as                      | is taken for                                                |
// |---------------------------------|-------------------------------------------------------------|
// | void: an argument left out      | missing                                                     |
// | a float                         | a number; truth values, dates and empty single cells arrive |
// |                                 | so, too                                                     |
// | text                            | text                                                        |
// | a matrix of one element         | a reference to one cell, which reads as that cell           |
// | a larger matrix                 | an array                                                    |
// | empty text or void in a matrix  | a blank cell                                                |
// | 1 or 0 for a truth value        | TRUE or FALSE                                               |
//
// | is given                | goes back as                                                        |
// |-------------------------|---------------------------------------------------------------------|
// | text, tokens among it   | text                                                                |
// | a number                | a float                                                             |
// | a truth value           | 1 or 0: the office has no other for a function that is added        |
// | blank, nothing          | empty text                                                          |
// | an error value          | the cell error of that meaning                                      |
// | an array                | a matrix                                                            |
#pragma once

#include <com/sun/star/uno/Any.hxx>

#include "frame/catalogue.h"
#include "host/host_value.h"
#include "host/run_time_failure.h"

namespace quorvex::calc {

HostValue From_Office(const com::sun::star::uno::Any& value);

/// The same for an argument: a parameter that is a truth value takes the office's 1 and 0 as such.
HostValue From_Office(const com::sun::star::uno::Any& value, const Parameter& parameter);

com::sun::star::uno::Any To_Office(const HostValue& value);
com::sun::star::uno::Any To_Office(const Call_Result& result);

/// The cell error that a failed call becomes: #NUM! for an overflow, #DIV/0! for a division by zero
/// (number 11), Err:523 ("does not converge") for a calculation that would not end or was broken
/// off, and otherwise #VALUE!.
com::sun::star::uno::Any Cell_Error(const Run_Time_Failure& failure);

/// The cell error #VALUE!.
com::sun::star::uno::Any Value_Error();

}  // namespace quorvex::calc
