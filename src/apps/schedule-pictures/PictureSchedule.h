#pragma once

namespace trel::pictures {

/// The plan of the first task that holds what a chooser can have to warn of.
constexpr int kTroubledPlan = 2;

/// Puts into the first task of the working set a plan with an entry gone bad, a program that has
/// left the catalogue, and more than a day of playing time. Nothing of it is saved.
void addTroubledPlan();

/// Lets the first two tasks share a day, so that the editor refuses to save.
void overlapTasks();

} // namespace trel::pictures
