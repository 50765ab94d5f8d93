#pragma once

/// How many requests for memory are still granted in this program before one is refused; all of
/// them if below 0.
extern long granted;
