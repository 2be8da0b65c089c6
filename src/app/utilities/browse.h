// The windows that show what is on the disk.
#pragma once

namespace velara {

class fMain;
class fToolTextures;

/// The picture browser, in its last folder.
void browsePictures(fMain& frame);
/// The same window, to choose the folder of the textures box.
void browseTextureFolder(fMain& frame, fToolTextures& box);
/// The list of formats; there is only one.
void showAssociation(fMain& frame);

} // namespace velara
