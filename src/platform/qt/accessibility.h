// What assistive technology is told of widgets of our own.
#pragma once

#include <QAccessibleInterface>

namespace trameli {

/// A widget that says itself what it is, where the toolkit could not know.
class SelfDescribing {
public:
    virtual ~SelfDescribing() = default;

    /// A new description; the toolkit owns it.
    virtual QAccessibleInterface* Describe() = 0;
};

/// Makes assistive technology see what widgets say of themselves; called once at the start of the
/// process.
void LetWidgetsDescribeThemselves();

}  // namespace trameli
