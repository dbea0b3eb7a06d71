// How the toolkit is set up.
#pragma once

namespace trameli {

/// Sets the toolkit up alike on every desktop; called once, before the first window.
void PrepareToolkit();

}  // namespace trameli
