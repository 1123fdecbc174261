#pragma once

#include <chrono>
#include <string>
#include <vector>

// Durations of the same thing, measured several times.
class Samples {
public:
    void add(std::chrono::nanoseconds duration);

    bool isEmpty() const { return milliseconds_.empty(); }

    // In milliseconds. There must be at least one sample.
    double median() const { return quantile(0.5); }

    // "1234 (1200…1300)": the median and, as spread, what the middle half of the samples lies
    // between.
    std::string text() const;

private:
    double quantile(double fraction) const;

    std::vector<double> milliseconds_; // in ascending order
};
