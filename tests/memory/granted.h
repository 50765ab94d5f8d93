#pragma once

/// How many requests for memory are still granted in this program before one is refused; below 0
/// all are.
extern long granted;
