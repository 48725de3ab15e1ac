#pragma once

#include "TrialOptions.h"

#include <QString>

/// Keeps the last actions of a trial, and tells them, with the seed, when the process dies, when it
/// stands still, and when a fault is reported. One a process; its calls belong to the main thread.
class FlightRecorder
{
public:
    /// Watches from now on. The name is that of the target in the figures.
    static void start(const char* target, const TrialOptions& options);

    /// An action is about to be done; from here the patience runs.
    static void note(const QString& action);
    /// What still belongs to the action is going on.
    static void stillAtIt();
    static qint64 count();

    /// A fault that the trial itself has found. Tells it and ends the process.
    [[noreturn]] static void fail(const QString& fault);
    /// Prints the figures of a trial without faults.
    static void finish();
};
