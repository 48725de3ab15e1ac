#pragma once

/// Has the toolkit tell of what changes, as it does while a screen reader runs, for as long as this
/// lives. Without one it tells nobody, whichever handler is installed. Needs the application.
class ActiveAccessibility
{
public:
    ActiveAccessibility();
    ~ActiveAccessibility();
    ActiveAccessibility(const ActiveAccessibility&) = delete;
    ActiveAccessibility& operator=(const ActiveAccessibility&) = delete;
};
