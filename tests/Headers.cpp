// SPDX-License-Identifier: Apache-2.0
// Empty: the object library whose precompiled headers the test programs share has to have a source.
