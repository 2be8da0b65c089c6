// fToolTextures: the textures box, which floats over the frame. One page lays out a text for the mouse tool "Text", the
// other runs an effect or a texture file on the active picture.
#pragma once
#include <QWidget>

class QTabWidget;

namespace velara {

class Frame;
class fTextPage;
class fEffectsPage;

class fToolTextures final : public QWidget {
    Q_OBJECT
  public:
    explicit fToolTextures(Frame& frame, QWidget* parent = nullptr);

    fTextPage& textPage() { return *text_; }
    fEffectsPage& effectsPage() { return *effects_; }
    /// Shows the page of the text, with the caret in it. The box must be visible.
    void beginText();
    const QString& textureFolder() const;
    void setTextureFolder(const QString& folder);

  signals:
    /// The user wants the mouse tool "Text".
    void placing();
    /// The user wants another folder of textures.
    void folderWanted();

  private:
    void showEffect(const QString& name);

    QTabWidget* SSTab1_;
    fTextPage* text_;
    fEffectsPage* effects_;
};

} // namespace velara
