// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Prints what the numbers below it were measured on: processor, cores, load, compiler.
void PrintMachine();
