// Prints a symbolised backtrace on any unhandled exception of the process, and ends it with status 99.
#pragma once

void installCrashReporter();
