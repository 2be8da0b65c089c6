// The browser of picture files, for opening and for choosing a folder, and the list of the formats that can be opened.
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
