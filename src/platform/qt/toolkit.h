// How the toolkit is set up.
#pragma once

namespace trameli {

/// Makes the pictures known that the program comes with.
void LoadPictures();

/// Sets the toolkit up alike on every desktop; called once, before the first window.
void PrepareToolkit();

}  // namespace trameli
