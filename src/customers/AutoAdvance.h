#pragma once

#include <QString>

/// Going through the customers by itself, one after the other at a set speed. It is kept apart from
/// the clock that drives it, which lies on the screen.
struct AutoAdvance {
    /// Milliseconds from one customer to the next.
    static constexpr int shortestInterval = 250;
    static constexpr int longestInterval = 5000;
    /// What a double click on one of the words beside the slider adds or takes.
    static constexpr int step = 100;

    bool IsOn = false;
    /// Milliseconds, from the shortest to the longest.
    int Interval = 2500;

    /// Of cmdNav(9): it tells the state and not what a click does.
    QString Caption() const;

    /// The two words work the wrong way round: the one for faster makes the interval longer. It has
    /// always been so.
    void Faster();
    void Slower();
};
