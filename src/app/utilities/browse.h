// The windows that show what is on the disk.
#pragma once

namespace velara {

class fMain;
class fToolTextures;

/// The picture browser, in the folder of the last time.
void browsePictures(fMain& frame);
/// The same window, choosing the folder of the textures box.
void browseTextureFolder(fMain& frame, fToolTextures& box);
/// The list of formats, once.
void showAssociation(fMain& frame);

} // namespace velara
