#pragma once

/// Operator new of a test program that is linked with Allocations.cpp: it can be told to fail, and knows what lives.
namespace allocations {

/// The allocation of that turn from now on, counted from 1, raises std::bad_alloc; with `Lasting` all behind it do too.
enum class Failure { Once, Lasting };
void failAt(long turn, Failure failure);

/// Lets no more allocation fail, and gives whether one has.
bool stopFailing();

/// How many blocks live.
long living();

} // namespace allocations
