// Other running copies of the program.
#pragma once

namespace trameli {

/// The service that knows of other instances: those of the same user of the machine that work on
/// the same data folder.
class Instances {
public:
    virtual ~Instances() = default;

    /// True if another instance runs. If not, this one counts as running from now on, until its
    /// process ends in whatever way.
    virtual bool AnotherRuns() = 0;
};

}  // namespace trameli
