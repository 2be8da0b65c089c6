<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Clipboard</name>
    <message>
        <source>the picture on the clipboard</source>
        <translation>das Bild in der Zwischenablage</translation>
    </message>
    <message>
        <source>The picture on the clipboard was given up.</source>
        <translation>Das Lesen des Bildes aus der Zwischenablage wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The picture on the clipboard</source>
        <translation>Das Bild in der Zwischenablage</translation>
    </message>
    <message>
        <source>The program that put the picture on the clipboard doesn&apos;t hand it over.</source>
        <translation>Das Programm, das das Bild in die Zwischenablage gelegt hat, gibt es nicht heraus.</translation>
    </message>
</context>
<context>
    <name>Colors</name>
    <message>
        <source>16 Colors</source>
        <translation>16 Farben</translation>
    </message>
    <message>
        <source>48 Colors</source>
        <translation>48 Farben</translation>
    </message>
    <message>
        <source>Red Pallete</source>
        <translation>Rote Palette</translation>
    </message>
    <message>
        <source>Green Pallete</source>
        <translation>Grüne Palette</translation>
    </message>
    <message>
        <source>Blue Pallete</source>
        <translation>Blaue Palette</translation>
    </message>
    <message>
        <source>Grey Pallete</source>
        <translation>Graue Palette</translation>
    </message>
    <message>
        <source>System Pallete</source>
        <translation>Systempalette</translation>
    </message>
</context>
<context>
    <name>FileFacts</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>Filters</name>
    <message>
        <source>Color [Colorize]</source>
        <translation>Farbe [Einfärben]</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Adjust [Brightness]</source>
        <translation>Anpassen [Helligkeit]</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>levels added; 0 changes nothing</source>
        <translation>addierte Stufen; 0 ändert nichts</translation>
    </message>
    <message>
        <source>Adjust [Contrast]</source>
        <translation>Anpassen [Kontrast]</translation>
    </message>
    <message>
        <source>percent added to the contrast; -100 is flat grey</source>
        <translation>Prozent mehr Kontrast; -100 ist einfarbiges Grau</translation>
    </message>
    <message>
        <source>Adjust [Saturation]</source>
        <translation>Anpassen [Sättigung]</translation>
    </message>
    <message>
        <source>percent added to the saturation; -100 is grey</source>
        <translation>Prozent mehr Sättigung; -100 ist grau</translation>
    </message>
    <message>
        <source>Adjust [Gamma correction]</source>
        <translation>Anpassen [Gammakorrektur]</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>gamma is (Level+100)/100; -100 is black</source>
        <translation>Gamma ist (Stufe+100)/100; -100 ist schwarz</translation>
    </message>
    <message>
        <source>Definition [Diffuse]</source>
        <translation>Schärfe [Streuen]</translation>
    </message>
    <message>
        <source>Horizontal range</source>
        <translation>Waagerechte Reichweite</translation>
    </message>
    <message>
        <source>pixels from left to right</source>
        <translation>Pixel von links nach rechts</translation>
    </message>
    <message>
        <source>Vertical range</source>
        <translation>Senkrechte Reichweite</translation>
    </message>
    <message>
        <source>pixels from top to bottom</source>
        <translation>Pixel von oben nach unten</translation>
    </message>
    <message>
        <source>Adjust [Blur]</source>
        <translation>Anpassen [Weichzeichnen]</translation>
    </message>
    <message>
        <source>pixels; 0 changes nothing</source>
        <translation>Pixel; 0 ändert nichts</translation>
    </message>
    <message>
        <source>Definition [Halftone]</source>
        <translation>Schärfe [Halbton]</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>pixels of a dot</source>
        <translation>Pixel eines Punktes</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>pixels added to its reach</source>
        <translation>Pixel, um die er weiter reicht</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensität</translation>
    </message>
    <message>
        <source>percent brighter</source>
        <translation>Prozent heller</translation>
    </message>
    <message>
        <source>Definition [Pixelaze]</source>
        <translation>Schärfe [Verpixeln]</translation>
    </message>
    <message>
        <source>Pixel size</source>
        <translation>Pixelgröße</translation>
    </message>
    <message>
        <source>pixels a side; 1 changes nothing</source>
        <translation>Pixel je Seite; 1 ändert nichts</translation>
    </message>
    <message>
        <source>Edges [Emboss]</source>
        <translation>Kanten [Prägen]</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>tenths of the difference; 0 is flat grey</source>
        <translation>Zehntel des Unterschieds; 0 ist einfarbiges Grau</translation>
    </message>
    <message>
        <source>Edges [Engrave]</source>
        <translation>Kanten [Gravieren]</translation>
    </message>
    <message>
        <source>Edges [Contour]</source>
        <translation>Kanten [Kontur]</translation>
    </message>
    <message>
        <source>edges darker than this show; 0 is none</source>
        <translation>sichtbar sind dunklere Kanten als diese; 0 ist keine</translation>
    </message>
    <message>
        <source>Edges [Sketch]</source>
        <translation>Kanten [Skizze]</translation>
    </message>
    <message>
        <source>B/W</source>
        <translation>S/W</translation>
    </message>
    <message>
        <source>edges above it are drawn; flat ones have 255</source>
        <translation>gezeichnet werden Kanten darüber; Flächen haben 255</translation>
    </message>
    <message>
        <source>Edges [Threshold]</source>
        <translation>Kanten [Schwellenwert]</translation>
    </message>
    <message>
        <source>Cut value</source>
        <translation>Grenzwert</translation>
    </message>
    <message>
        <source>brightest level that becomes black</source>
        <translation>hellste Stufe, die schwarz wird</translation>
    </message>
    <message>
        <source>Color [Isolate]</source>
        <translation>Farbe [Isolieren]</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>percent of half a channel&apos;s range; 0 is the exact colour</source>
        <translation>Prozent vom halben Umfang eines Kanals; 0 ist genau die Farbe</translation>
    </message>
    <message>
        <source>Color [Reduction]</source>
        <translation>Farbe [Reduktion]</translation>
    </message>
    <message>
        <source>levels are rounded to multiples of Level+1; 0 changes nothing</source>
        <translation>gerundet wird auf Vielfache von Stufe+1; 0 ändert nichts</translation>
    </message>
    <message>
        <source>Color [Replace]</source>
        <translation>Farbe [Ersetzen]</translation>
    </message>
    <message>
        <source>Color [Replace Hue/Sat.]</source>
        <translation>Farbe [Farbton/Sätt. ersetzen]</translation>
    </message>
    <message>
        <source>Hue Tolerance</source>
        <translation>Farbtontoleranz</translation>
    </message>
    <message>
        <source>hundredths of a sixth of a turn</source>
        <translation>Hundertstel eines Sechstels des Farbkreises</translation>
    </message>
    <message>
        <source>Sat. Tolerance</source>
        <translation>Sätt.-Toleranz</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>Apply Tolerance</source>
        <translation>Anwendungstoleranz</translation>
    </message>
    <message>
        <source>Color [Replace Lum.]</source>
        <translation>Farbe [Hell. ersetzen]</translation>
    </message>
    <message>
        <source>Lum. Tolerance</source>
        <translation>Hell.-Toleranz</translation>
    </message>
    <message>
        <source>percent of brightness</source>
        <translation>Prozent der Helligkeit</translation>
    </message>
    <message>
        <source>Adjust [Sharpen]</source>
        <translation>Anpassen [Schärfen]</translation>
    </message>
    <message>
        <source>0 weak to 100 strong</source>
        <translation>0 schwach bis 100 stark</translation>
    </message>
    <message>
        <source>Adjust [Soften]</source>
        <translation>Anpassen [Abmildern]</translation>
    </message>
    <message>
        <source>Color [Shift]</source>
        <translation>Farbe [Verschieben]</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>levels added</source>
        <translation>addierte Stufen</translation>
    </message>
    <message>
        <source>Color [Hue rotation]</source>
        <translation>Farbe [Farbton drehen]</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>percent of a turn of the hue</source>
        <translation>Prozent einer Drehung des Farbkreises</translation>
    </message>
    <message>
        <source>percent kept; 0 is grey</source>
        <translation>Prozent, die bleiben; 0 ist grau</translation>
    </message>
    <message>
        <source>Color [Grey rotation]</source>
        <translation>Farbe [Grau drehen]</translation>
    </message>
    <message>
        <source>phase of the sine in tenths of a radian</source>
        <translation>Phase des Sinus in Zehnteln eines Radianten</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>its frequency: Steps/2.5 radians from black to white</source>
        <translation>seine Frequenz: Schritte/2,5 Radianten von Schwarz bis Weiß</translation>
    </message>
    <message>
        <source>Color [Hue stretch]</source>
        <translation>Farbe [Farbton strecken]</translation>
    </message>
    <message>
        <source>percent; 0 is grey</source>
        <translation>Prozent; 0 ist grau</translation>
    </message>
    <message>
        <source>Stretch factor</source>
        <translation>Streckfaktor</translation>
    </message>
    <message>
        <source>tenths of a radian of hue from black to white</source>
        <translation>Zehntel eines Radianten Farbton von Schwarz bis Weiß</translation>
    </message>
    <message>
        <source>Color [RGB levels]</source>
        <translation>Farbe [RGB-Stufen]</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Color [RGB banks]</source>
        <translation>Farbe [RGB-Kanäle]</translation>
    </message>
    <message>
        <source>Deformation [Lens]</source>
        <translation>Verformung [Linse]</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>Magnify factor</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>0 nothing to 130 strong</source>
        <translation>0 nichts bis 130 stark</translation>
    </message>
    <message>
        <source>Deformation [Waves]</source>
        <translation>Verformung [Wellen]</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>degrees a row</source>
        <translation>Grad je Zeile</translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation>Amplitude</translation>
    </message>
    <message>
        <source>quarters of a pixel</source>
        <translation>Viertel eines Pixels</translation>
    </message>
    <message>
        <source>Start degree</source>
        <translation>Anfangsgrad</translation>
    </message>
    <message>
        <source>degrees at the top row</source>
        <translation>Grad in der obersten Zeile</translation>
    </message>
    <message>
        <source>Deformation [Bend]</source>
        <translation>Verformung [Biegen]</translation>
    </message>
    <message>
        <source>Clean back</source>
        <translation>Hintergrund leeren</translation>
    </message>
    <message>
        <source>Radius factor</source>
        <translation>Radiusfaktor</translation>
    </message>
    <message>
        <source>percent added to twice the radius</source>
        <translation>Prozent mehr als der doppelte Radius</translation>
    </message>
    <message>
        <source>Deformation [Fold]</source>
        <translation>Verformung [Falten]</translation>
    </message>
    <message>
        <source>Horizontal factor</source>
        <translation>Waagerechter Faktor</translation>
    </message>
    <message>
        <source>percent at the edge; 0 is none</source>
        <translation>Prozent am Rand; 0 ist keine</translation>
    </message>
    <message>
        <source>Vertical factor</source>
        <translation>Senkrechter Faktor</translation>
    </message>
    <message>
        <source>Deformation [Rotate]</source>
        <translation>Verformung [Drehen]</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>to the left; below 0 to the right</source>
        <translation>nach links; unter 0 nach rechts</translation>
    </message>
    <message>
        <source>Deformation [Stretch]</source>
        <translation>Verformung [Strecken]</translation>
    </message>
    <message>
        <source>percent; above 0 shrinks; below 0 enlarges</source>
        <translation>Prozent; über 0 verkleinert, unter 0 vergrößert</translation>
    </message>
    <message>
        <source>percent as before</source>
        <translation>Prozent wie zuvor</translation>
    </message>
    <message>
        <source>Deformation [Tile]</source>
        <translation>Verformung [Kacheln]</translation>
    </message>
    <message>
        <source>Factor</source>
        <translation>Faktor</translation>
    </message>
    <message>
        <source>copies a side</source>
        <translation>Kopien je Seite</translation>
    </message>
    <message>
        <source>Deformation [Twirl]</source>
        <translation>Verformung [Strudel]</translation>
    </message>
    <message>
        <source>tenths of a radian at half the width</source>
        <translation>Zehntel eines Radianten bei halber Breite</translation>
    </message>
    <message>
        <source>Offset degrees</source>
        <translation>Versatz in Grad</translation>
    </message>
    <message>
        <source>degrees for all</source>
        <translation>Grad für alle</translation>
    </message>
    <message>
        <source>Special [Grid]</source>
        <translation>Spezial [Gitter]</translation>
    </message>
    <message>
        <source>Force margins</source>
        <translation>Ränder erzwingen</translation>
    </message>
    <message>
        <source>Horizontal step</source>
        <translation>Waagerechter Abstand</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Vertical step</source>
        <translation>Senkrechter Abstand</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>0 invisible to 255 opaque</source>
        <translation>0 unsichtbar bis 255 deckend</translation>
    </message>
    <message>
        <source>Special [Light]</source>
        <translation>Spezial [Licht]</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Ausdehnung</translation>
    </message>
    <message>
        <source>levels added in the middle</source>
        <translation>in der Mitte addierte Stufen</translation>
    </message>
    <message>
        <source>percent of it at the rim</source>
        <translation>Prozent davon am Rand</translation>
    </message>
    <message>
        <source>Special [Noise]</source>
        <translation>Spezial [Rauschen]</translation>
    </message>
    <message>
        <source>Equalized</source>
        <translation>Ausgeglichen</translation>
    </message>
    <message>
        <source>levels up or down</source>
        <translation>Stufen auf oder ab</translation>
    </message>
    <message>
        <source>Special [Scanlines]</source>
        <translation>Spezial [Bildzeilen]</translation>
    </message>
    <message>
        <source>levels taken away</source>
        <translation>abgezogene Stufen</translation>
    </message>
    <message>
        <source>Behind Glass</source>
        <translation>Hinter Glas</translation>
    </message>
    <message>
        <source>Behind Curtain</source>
        <translation>Hinter dem Vorhang</translation>
    </message>
    <message>
        <source>Squary</source>
        <translation>Quadratisch</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Waagerecht</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>Slanting</source>
        <translation>Schräg</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>Tight</source>
        <translation>Eng</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Weit</translation>
    </message>
    <message>
        <source>Classy</source>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>Whity</source>
        <translation>Weißlich</translation>
    </message>
    <message>
        <source>Stored texture</source>
        <translation>Gespeicherte Textur</translation>
    </message>
    <message>
        <source>Contour</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Diffuse</source>
        <translation>Streuen</translation>
    </message>
    <message>
        <source>Dilate</source>
        <translation>Ausdehnen</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Auflösen</translation>
    </message>
    <message>
        <source>Edge enhance</source>
        <translation>Kanten verstärken</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>Prägen</translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation>Gravieren</translation>
    </message>
    <message>
        <source>Equalize</source>
        <translation>Ausgleichen</translation>
    </message>
    <message>
        <source>Erode</source>
        <translation>Abtragen</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Kippen</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Falten</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Halbton</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invertieren</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Rauschen</translation>
    </message>
    <message>
        <source>Old photo</source>
        <translation>Altes Foto</translation>
    </message>
    <message>
        <source>Painting</source>
        <translation>Gemälde</translation>
    </message>
    <message>
        <source>Photocopy</source>
        <translation>Fotokopie</translation>
    </message>
    <message>
        <source>Pixelize</source>
        <translation>Verpixeln</translation>
    </message>
    <message>
        <source>Relief</source>
        <translation>Relief</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Scanlines</source>
        <translation>Bildzeilen</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>Sketch</source>
        <translation>Skizze</translation>
    </message>
    <message>
        <source>Soften</source>
        <translation>Abmildern</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>Wärmebild</translation>
    </message>
    <message>
        <source>Twirl</source>
        <translation>Strudel</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>Wellen</translation>
    </message>
    <message>
        <source>Invert black</source>
        <translation>Schwarz invertieren</translation>
    </message>
</context>
<context>
    <name>Fonts</name>
    <message>
        <source>Failed to get font info</source>
        <translation>Die Angaben zur Schrift sind nicht zu bekommen</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>%1 is %2 picture</source>
        <translation>%1 ist ein Bild der Art %2</translation>
    </message>
    <message>
        <source>All Supported Picture Formats</source>
        <translation>Alle unterstützten Bildformate</translation>
    </message>
    <message>
        <source>Bitmap Files (*.BMP;*.DIB)</source>
        <translation>Bitmap-Dateien (*.BMP;*.DIB)</translation>
    </message>
    <message>
        <source>Meta Files (*.WMF;*.EMF)</source>
        <translation>Metadateien (*.WMF;*.EMF)</translation>
    </message>
    <message>
        <source>Graphical Interface Format(*.GIF)</source>
        <translation>Graphical Interface Format(*.GIF)</translation>
    </message>
    <message>
        <source>Independent JPEG Group (*.JPG)</source>
        <translation>Independent JPEG Group (*.JPG)</translation>
    </message>
    <message>
        <source>Portable Network Graphics (*.PNG)</source>
        <translation>Portable Network Graphics (*.PNG)</translation>
    </message>
    <message>
        <source>Zsoft Paintbrush Files (*.PCX)</source>
        <translation>Zsoft-Paintbrush-Dateien (*.PCX)</translation>
    </message>
    <message>
        <source>Wireless Bitmap (*.WBMP)</source>
        <translation>Wireless Bitmap (*.WBMP)</translation>
    </message>
    <message>
        <source>Portable Bitmap (*.PBM)</source>
        <translation>Portable Bitmap (*.PBM)</translation>
    </message>
    <message>
        <source>Portable Graymap (*.PGM)</source>
        <translation>Portable Graymap (*.PGM)</translation>
    </message>
    <message>
        <source>Portable Pixelmap (*.PPM)</source>
        <translation>Portable Pixelmap (*.PPM)</translation>
    </message>
    <message>
        <source>Windows Icon (*.ICO)</source>
        <translation>Windows-Symbol (*.ICO)</translation>
    </message>
    <message>
        <source>Photoshop (*.PSD)</source>
        <translation>Photoshop (*.PSD)</translation>
    </message>
    <message>
        <source>JPEG Network Graphics (*.JNG)</source>
        <translation>JPEG Network Graphics (*.JNG)</translation>
    </message>
    <message>
        <source>Multiple Network Graphics (*.MNG)</source>
        <translation>Multiple Network Graphics (*.MNG)</translation>
    </message>
    <message>
        <source>Tagged Image File Format (*.TIF)</source>
        <translation>Tagged Image File Format (*.TIF)</translation>
    </message>
    <message>
        <source>Commodore 64 Koala format (*.KOA)</source>
        <translation>Commodore-64-Koala-Format (*.KOA)</translation>
    </message>
    <message>
        <source>Kodak PhotoCD (*.PCD)</source>
        <translation>Kodak PhotoCD (*.PCD)</translation>
    </message>
    <message>
        <source>Sun Rasterfile (*.RAS)</source>
        <translation>Sun-Rasterdatei (*.RAS)</translation>
    </message>
    <message>
        <source>Targa files (*.TGA)</source>
        <translation>Targa-Dateien (*.TGA)</translation>
    </message>
    <message>
        <source>Dr.Halo bitmap (*.CUT)</source>
        <translation>Dr.-Halo-Bitmap (*.CUT)</translation>
    </message>
    <message>
        <source>Interchanged File Format (*.IFF)</source>
        <translation>Interchanged File Format (*.IFF)</translation>
    </message>
    <message>
        <source>Deluxe Paint package (*.LBM)</source>
        <translation>Deluxe-Paint-Bild (*.LBM)</translation>
    </message>
    <message>
        <source>WebP (*.WEBP)</source>
        <translation>WebP (*.WEBP)</translation>
    </message>
    <message>
        <source>High Efficiency Image File (*.HEIC)</source>
        <translation>High Efficiency Image File (*.HEIC)</translation>
    </message>
    <message>
        <source>AV1 Image File (*.AVIF)</source>
        <translation>AV1 Image File (*.AVIF)</translation>
    </message>
    <message>
        <source>JPEG XL (*.JXL)</source>
        <translation>JPEG XL (*.JXL)</translation>
    </message>
    <message>
        <source>Scalable Vector Graphics (*.SVG)</source>
        <translation>Scalable Vector Graphics (*.SVG)</translation>
    </message>
    <message>
        <source>Camera Files (*.DNG;*.CR2;*.NEF;*.ARW;*.RAF;*.ORF;*.RW2)</source>
        <translation>Kameradateien (*.DNG;*.CR2;*.NEF;*.ARW;*.RAF;*.ORF;*.RW2)</translation>
    </message>
    <message>
        <source>All Supported graphic formats </source>
        <translation>Alle unterstützten Grafikformate </translation>
    </message>
    <message>
        <source>Windows Bitmap Files (*.bmp)</source>
        <translation>Windows-Bitmap-Dateien (*.bmp)</translation>
    </message>
    <message>
        <source>Graphical Interface Format (*.GIF)</source>
        <translation>Graphical Interface Format (*.GIF)</translation>
    </message>
    <message>
        <source>Zsoft Paintbrush (*.PCX)</source>
        <translation>Zsoft Paintbrush (*.PCX)</translation>
    </message>
    <message>
        <source>ASCII bitmap format(*.ppm)(*.pgm)(*.pbm)</source>
        <translation>ASCII-Bitmap-Format(*.ppm)(*.pgm)(*.pbm)</translation>
    </message>
    <message>
        <source>Windows Bitmap</source>
        <translation>Windows-Bitmap</translation>
    </message>
    <message>
        <source>Meta Files</source>
        <translation>Metadateien</translation>
    </message>
    <message>
        <source>Graphical Interface Format</source>
        <translation>Graphical Interface Format</translation>
    </message>
    <message>
        <source>Independent JPEG group</source>
        <translation>Independent JPEG Group</translation>
    </message>
    <message>
        <source>Portable Network Group</source>
        <translation>Portable Network Group</translation>
    </message>
    <message>
        <source>ZSoft Paintbrush Format</source>
        <translation>ZSoft-Paintbrush-Format</translation>
    </message>
    <message>
        <source>Wireless Bitmap</source>
        <translation>Wireless Bitmap</translation>
    </message>
    <message>
        <source>Portable Bitmap</source>
        <translation>Portable Bitmap</translation>
    </message>
    <message>
        <source>Portable Graymap</source>
        <translation>Portable Graymap</translation>
    </message>
    <message>
        <source>Portable Pixelmap</source>
        <translation>Portable Pixelmap</translation>
    </message>
    <message>
        <source>Windows Icon</source>
        <translation>Windows-Symbol</translation>
    </message>
    <message>
        <source>Photoshop</source>
        <translation>Photoshop</translation>
    </message>
    <message>
        <source>JPEG Network Graphics</source>
        <translation>JPEG Network Graphics</translation>
    </message>
    <message>
        <source>Multiple Network Graphics</source>
        <translation>Multiple Network Graphics</translation>
    </message>
    <message>
        <source>Tagged Image File Format</source>
        <translation>Tagged Image File Format</translation>
    </message>
    <message>
        <source>Commodore 64 Koala format</source>
        <translation>Commodore-64-Koala-Format</translation>
    </message>
    <message>
        <source>Kodak PhotoCD</source>
        <translation>Kodak PhotoCD</translation>
    </message>
    <message>
        <source>Sun Rasterfile</source>
        <translation>Sun-Rasterdatei</translation>
    </message>
    <message>
        <source>Targa files</source>
        <translation>Targa-Dateien</translation>
    </message>
    <message>
        <source>Dr.Halo bitmap</source>
        <translation>Dr.-Halo-Bitmap</translation>
    </message>
    <message>
        <source>Interchanged File Format</source>
        <translation>Interchanged File Format</translation>
    </message>
    <message>
        <source>Deluxe Paint package</source>
        <translation>Deluxe-Paint-Bild</translation>
    </message>
    <message>
        <source>WebP</source>
        <translation>WebP</translation>
    </message>
    <message>
        <source>High Efficiency Image File</source>
        <translation>High Efficiency Image File</translation>
    </message>
    <message>
        <source>AV1 Image File</source>
        <translation>AV1 Image File</translation>
    </message>
    <message>
        <source>JPEG XL</source>
        <translation>JPEG XL</translation>
    </message>
    <message>
        <source>Scalable Vector Graphics</source>
        <translation>Scalable Vector Graphics</translation>
    </message>
    <message>
        <source>Camera Files</source>
        <translation>Kameradateien</translation>
    </message>
    <message>
        <source>a BMP</source>
        <translation>BMP</translation>
    </message>
    <message>
        <source>a WBMP</source>
        <translation>WBMP</translation>
    </message>
    <message>
        <source>a bitmap</source>
        <translation>Bitmap</translation>
    </message>
    <message>
        <source>a Windows metafile</source>
        <translation>Windows-Metadatei</translation>
    </message>
    <message>
        <source>an enhanced metafile</source>
        <translation>Erweiterte Metadatei</translation>
    </message>
    <message>
        <source>a GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>a JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>a PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>a PCX</source>
        <translation>PCX</translation>
    </message>
    <message>
        <source>a portable anymap</source>
        <translation>Portable Anymap</translation>
    </message>
    <message>
        <source>an icon</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>a cursor</source>
        <translation>Mauszeiger</translation>
    </message>
    <message>
        <source>a Photoshop</source>
        <translation>Photoshop</translation>
    </message>
    <message>
        <source>an MNG</source>
        <translation>MNG</translation>
    </message>
    <message>
        <source>a TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>a Koala</source>
        <translation>Koala</translation>
    </message>
    <message>
        <source>a Photo CD</source>
        <translation>Photo CD</translation>
    </message>
    <message>
        <source>a Sun raster</source>
        <translation>Sun-Raster</translation>
    </message>
    <message>
        <source>a Targa</source>
        <translation>Targa</translation>
    </message>
    <message>
        <source>a Dr. Halo</source>
        <translation>Dr. Halo</translation>
    </message>
    <message>
        <source>an IFF</source>
        <translation>IFF</translation>
    </message>
    <message>
        <source>a WebP</source>
        <translation>WebP</translation>
    </message>
    <message>
        <source>a HEIF</source>
        <translation>HEIF</translation>
    </message>
    <message>
        <source>an AVIF</source>
        <translation>AVIF</translation>
    </message>
    <message>
        <source>a JPEG XL</source>
        <translation>JPEG XL</translation>
    </message>
    <message>
        <source>an SVG</source>
        <translation>SVG</translation>
    </message>
    <message>
        <source>a camera&apos;s</source>
        <translation>Kamerabild</translation>
    </message>
</context>
<context>
    <name>Leftover</name>
    <message>
        <source>Recovered %1</source>
        <translation>Wiederhergestellt %1</translation>
    </message>
    <message>
        <source>Its pictures can&apos;t be read.</source>
        <translation>Seine Bilder sind nicht lesbar.</translation>
    </message>
    <message>
        <source>A newer version of the program left it: its name is not known.</source>
        <translation>Es stammt von einer neueren Version des Programms: Sein Name ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Its record is damaged: its name is not known.</source>
        <translation>Sein Protokoll ist beschädigt: Sein Name ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Its record is missing: its name is not known.</source>
        <translation>Sein Protokoll fehlt: Sein Name ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The last change could not be kept: this is the one before it.</source>
        <translation>Die letzte Änderung ließ sich nicht aufbewahren: Dies ist der Stand davor.</translation>
    </message>
    <message>
        <source>Not all of its steps back could be kept.</source>
        <translation>Nicht alle Schritte zurück ließen sich aufbewahren.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation>&amp;Neu ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>&amp;Browse ...</source>
        <translation>&amp;Durchsuchen ...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Next Pa&amp;ge</source>
        <translation>Nächste Sei&amp;te</translation>
    </message>
    <message>
        <source>Prev&amp;ious Page</source>
        <translation>Vor&amp;herige Seite</translation>
    </message>
    <message>
        <source>Reco&amp;ver ...</source>
        <translation>&amp;Wiederherstellen ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>Save A&amp;ll ...</source>
        <translation>&amp;Alle speichern ...</translation>
    </message>
    <message>
        <source>Save for &amp;Web ...</source>
        <translation>Fü&amp;r das Web speichern ...</translation>
    </message>
    <message>
        <source>Scann&amp;er</source>
        <translation>Scann&amp;er</translation>
    </message>
    <message>
        <source>Acquire ...</source>
        <translation>Einlesen ...</translation>
    </message>
    <message>
        <source>Select Source ...</source>
        <translation>Quelle wählen ...</translation>
    </message>
    <message>
        <source>Digital Camera</source>
        <translation>Digitalkamera</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Dru&amp;cken</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Printer Setup ...</source>
        <translation>Drucker einrichten ...</translation>
    </message>
    <message>
        <source>Print ...</source>
        <translation>Drucken ...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>A&amp;lles auswählen</translation>
    </message>
    <message>
        <source>Select Non&amp;e</source>
        <translation>Auswahl auf&amp;heben</translation>
    </message>
    <message>
        <source>In&amp;vert Selection</source>
        <translation>Auswahl &amp;umkehren</translation>
    </message>
    <message>
        <source>Create &amp;New Copy</source>
        <translation>&amp;Neue Kopie anlegen</translation>
    </message>
    <message>
        <source>Copy Image to Clip&amp;board</source>
        <translation>&amp;Bild in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Create &amp;from Clipboard</source>
        <translation>Neu aus &amp;Zwischenablage</translation>
    </message>
    <message>
        <source>Cr&amp;op</source>
        <translation>Zu&amp;schneiden</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>Rezepte</translation>
    </message>
    <message>
        <source>&amp;Run Recipe ...</source>
        <translation>Rezept &amp;anwenden ...</translation>
    </message>
    <message>
        <source>&amp;Save Recipe ...</source>
        <translation>Rezept &amp;speichern ...</translation>
    </message>
    <message>
        <source>Run on a &amp;Folder ...</source>
        <translation>Auf &amp;Ordner anwenden ...</translation>
    </message>
    <message>
        <source>I&amp;mage Properties</source>
        <translation>B&amp;ildeigenschaften</translation>
    </message>
    <message>
        <source>Opt&amp;ions ...</source>
        <translation>&amp;Optionen ...</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>B&amp;ild</translation>
    </message>
    <message>
        <source>Image Size ...</source>
        <translation>Bildgröße ...</translation>
    </message>
    <message>
        <source>Canvas Size ...</source>
        <translation>Leinwandgröße ...</translation>
    </message>
    <message>
        <source>Orientation ...</source>
        <translation>Ausrichtung ...</translation>
    </message>
    <message>
        <source>Rotate ...</source>
        <translation>Drehen ...</translation>
    </message>
    <message>
        <source>Restore Original</source>
        <translation>Original wiederherstellen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>&amp;Quality Size</source>
        <translation>Größe in hoher &amp;Qualität</translation>
    </message>
    <message>
        <source>2 x larger</source>
        <translation>2-mal größer</translation>
    </message>
    <message>
        <source>3 x larger</source>
        <translation>3-mal größer</translation>
    </message>
    <message>
        <source>4 x larger</source>
        <translation>4-mal größer</translation>
    </message>
    <message>
        <source>5 x larger</source>
        <translation>5-mal größer</translation>
    </message>
    <message>
        <source>2 x smaller</source>
        <translation>2-mal kleiner</translation>
    </message>
    <message>
        <source>3 x smaller</source>
        <translation>3-mal kleiner</translation>
    </message>
    <message>
        <source>4 x smaller</source>
        <translation>4-mal kleiner</translation>
    </message>
    <message>
        <source>5 x smaller</source>
        <translation>5-mal kleiner</translation>
    </message>
    <message>
        <source>Quick Rotate</source>
        <translation>Schnell drehen</translation>
    </message>
    <message>
        <source>Quality Rotate</source>
        <translation>In hoher Qualität drehen</translation>
    </message>
    <message>
        <source>Flip &amp;Horizontal</source>
        <translation>&amp;Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Flip &amp;Vertical</source>
        <translation>&amp;Vertikal spiegeln</translation>
    </message>
    <message>
        <source>&amp;Properties ...</source>
        <translation>&amp;Eigenschaften ...</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>Tweak RGB</source>
        <translation>RGB anpassen</translation>
    </message>
    <message>
        <source>Old Photo</source>
        <translation>Altes Foto</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Einfärben</translation>
    </message>
    <message>
        <source>Sketch</source>
        <translation>Skizze</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>Isolieren</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Sepia Tone</source>
        <translation>Sepiaton</translation>
    </message>
    <message>
        <source>Hue Stretch</source>
        <translation>Farbton strecken</translation>
    </message>
    <message>
        <source>Hue Rotation</source>
        <translation>Farbton drehen</translation>
    </message>
    <message>
        <source>Grey Rotation</source>
        <translation>Grau drehen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Hue &amp;&amp; Saturation</source>
        <translation>Farbton &amp;&amp; Sättigung</translation>
    </message>
    <message>
        <source>Luminous</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Vertauschen</translation>
    </message>
    <message>
        <source>RGB To BRG</source>
        <translation>RGB zu BRG</translation>
    </message>
    <message>
        <source>RGB To GBR</source>
        <translation>RGB zu GBR</translation>
    </message>
    <message>
        <source>RGB To RBG</source>
        <translation>RGB zu RBG</translation>
    </message>
    <message>
        <source>RGB To BGR</source>
        <translation>RGB zu BGR</translation>
    </message>
    <message>
        <source>RGB To GRB</source>
        <translation>RGB zu GRB</translation>
    </message>
    <message>
        <source>RGB Banks</source>
        <translation>RGB-Kanäle</translation>
    </message>
    <message>
        <source>Add Colors</source>
        <translation>Farbe geben</translation>
    </message>
    <message>
        <source>Soft Red</source>
        <translation>Zartes Rot</translation>
    </message>
    <message>
        <source>Hard Red</source>
        <translation>Kräftiges Rot</translation>
    </message>
    <message>
        <source>Soft Green</source>
        <translation>Zartes Grün</translation>
    </message>
    <message>
        <source>Hard Green</source>
        <translation>Kräftiges Grün</translation>
    </message>
    <message>
        <source>Soft Blue</source>
        <translation>Zartes Blau</translation>
    </message>
    <message>
        <source>Hard Blue</source>
        <translation>Kräftiges Blau</translation>
    </message>
    <message>
        <source>Soft Yellow</source>
        <translation>Zartes Gelb</translation>
    </message>
    <message>
        <source>Hard Yellow</source>
        <translation>Kräftiges Gelb</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Retro</source>
        <translation>Retro</translation>
    </message>
    <message>
        <source>Spotted</source>
        <translation>Gefleckt</translation>
    </message>
    <message>
        <source>Wet Paper</source>
        <translation>Nasses Papier</translation>
    </message>
    <message>
        <source>Fi&amp;lters</source>
        <translation>Fi&amp;lter</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invertieren</translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Relief</source>
        <translation>Relief</translation>
    </message>
    <message>
        <source>Erode</source>
        <translation>Abtragen</translation>
    </message>
    <message>
        <source>Dilate</source>
        <translation>Ausdehnen</translation>
    </message>
    <message>
        <source>Painting</source>
        <translation>Gemälde</translation>
    </message>
    <message>
        <source>Edge Enhance</source>
        <translation>Kanten verstärken</translation>
    </message>
    <message>
        <source>Luminousity</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Stark</translation>
    </message>
    <message>
        <source>Custom ...</source>
        <translation>Benutzerdefiniert ...</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>Prägen</translation>
    </message>
    <message>
        <source>Contour</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Diffuse</source>
        <translation>Streuen</translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation>Gravieren</translation>
    </message>
    <message>
        <source>Soften</source>
        <translation>Abmildern</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Weichzeichnen</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Rauschen</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Flare</source>
        <translation>Lichtschein</translation>
    </message>
    <message>
        <source>Scanlines</source>
        <translation>Bildzeilen</translation>
    </message>
    <message>
        <source>Effect&amp;s</source>
        <translation>&amp;Effekte</translation>
    </message>
    <message>
        <source>Haftone</source>
        <translation>Halbton</translation>
    </message>
    <message>
        <source>Pixelize</source>
        <translation>Verpixeln</translation>
    </message>
    <message>
        <source>Mosaic</source>
        <translation>Mosaik</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Gamma Correction</source>
        <translation>Gammakorrektur</translation>
    </message>
    <message>
        <source>Thermique</source>
        <translation>Wärmebild</translation>
    </message>
    <message>
        <source>X-Black</source>
        <translation>X-Schwarz</translation>
    </message>
    <message>
        <source>Photo Cop</source>
        <translation>Fotokopie</translation>
    </message>
    <message>
        <source>Shapes</source>
        <translation>Formen</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Linse</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>Wellen</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Biegen</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Falten</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Twirl</source>
        <translation>Strudel</translation>
    </message>
    <message>
        <source>Glass</source>
        <translation>Glas</translation>
    </message>
    <message>
        <source>Slanting</source>
        <translation>Schräg</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Waagerecht</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>Squary</source>
        <translation>Quadratisch</translation>
    </message>
    <message>
        <source>Curtain</source>
        <translation>Vorhang</translation>
    </message>
    <message>
        <source>Classy</source>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>Whity</source>
        <translation>Weißlich</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>Image Merging ...</source>
        <translation>Bilder verschmelzen ...</translation>
    </message>
    <message>
        <source>Screen Capture ...</source>
        <translation>Bildschirmaufnahme ...</translation>
    </message>
    <message>
        <source>Image Textures ...</source>
        <translation>Bildtexturen ...</translation>
    </message>
    <message>
        <source>Image Resolution ...</source>
        <translation>Bildauflösung ...</translation>
    </message>
    <message>
        <source>Color Depth ...</source>
        <translation>Farbtiefe ...</translation>
    </message>
    <message>
        <source>Save for Web ...</source>
        <translation>Für das Web speichern ...</translation>
    </message>
    <message>
        <source>Text Tools ...</source>
        <translation>Textwerkzeuge ...</translation>
    </message>
    <message>
        <source>Icon Extractor ...</source>
        <translation>Symbole entnehmen ...</translation>
    </message>
    <message>
        <source>File Associations ...</source>
        <translation>Dateizuordnungen ...</translation>
    </message>
    <message>
        <source>Quick Capture</source>
        <translation>Schnellaufnahme</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Schreibtisch</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Vordergrund</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Set as Wallpaper</source>
        <translation>Als Hintergrundbild</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Zentrieren</translation>
    </message>
    <message>
        <source>&amp;Views</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Tile Horizontally</source>
        <translation>Untereinander</translation>
    </message>
    <message>
        <source>Tile Vertically</source>
        <translation>Nebeneinander</translation>
    </message>
    <message>
        <source>Cascade</source>
        <translation>Überlappend</translation>
    </message>
    <message>
        <source>New View</source>
        <translation>Neue Ansicht</translation>
    </message>
    <message>
        <source>Color Box</source>
        <translation>Farbfenster</translation>
    </message>
    <message>
        <source>Textures Box</source>
        <translation>Texturfenster</translation>
    </message>
    <message>
        <source>Clipboard Box</source>
        <translation>Zwischenablagefenster</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Status Bar</source>
        <translation>Statusleiste</translation>
    </message>
    <message>
        <source>Side Tools  Bar : Hide n Seek</source>
        <translation>Werkzeugleiste  an der Seite : Versteckspiel</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Symbolleisten</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>Dienstprogramme</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Store Toolbar Layout</source>
        <translation>Anordnung der Symbolleisten merken</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Help ...</source>
        <translation>&amp;Hilfe ...</translation>
    </message>
    <message>
        <source>&amp;Find a Command ...</source>
        <translation>&amp;Befehl suchen ...</translation>
    </message>
    <message>
        <source>&amp;About Velara Studio</source>
        <translation>Über &amp;Velara Studio</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Glass: Horizontal</source>
        <translation>Glas: Waagerecht</translation>
    </message>
    <message>
        <source>Luminousity: Light</source>
        <translation>Helligkeit: Leicht</translation>
    </message>
    <message>
        <source>Luminousity: Heavy</source>
        <translation>Helligkeit: Stark</translation>
    </message>
    <message>
        <source>Blur: Light</source>
        <translation>Weichzeichnen: Leicht</translation>
    </message>
    <message>
        <source>Emboss: Light</source>
        <translation>Prägen: Leicht</translation>
    </message>
    <message>
        <source>Contour: Light</source>
        <translation>Kontur: Leicht</translation>
    </message>
    <message>
        <source>Diffuse: Light</source>
        <translation>Streuen: Leicht</translation>
    </message>
    <message>
        <source>Engrave: Light</source>
        <translation>Gravieren: Leicht</translation>
    </message>
    <message>
        <source>Soften: Heavy</source>
        <translation>Abmildern: Stark</translation>
    </message>
    <message>
        <source>Noise: Light</source>
        <translation>Rauschen: Leicht</translation>
    </message>
    <message>
        <source>Saturation: Heavy</source>
        <translation>Sättigung: Stark</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Quick rotate</source>
        <translation>Schnell drehen</translation>
    </message>
    <message>
        <source>Quality rotate</source>
        <translation>In hoher Qualität drehen</translation>
    </message>
    <message>
        <source>Quality size</source>
        <translation>Größe in hoher Qualität</translation>
    </message>
    <message>
        <source>Save for web</source>
        <translation>Für das Web speichern</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Bildschirmaufnahme</translation>
    </message>
    <message>
        <source>Image resolution</source>
        <translation>Bildauflösung</translation>
    </message>
    <message>
        <source>Image merging</source>
        <translation>Bilder verschmelzen</translation>
    </message>
    <message>
        <source>Image textures</source>
        <translation>Bildtexturen</translation>
    </message>
    <message>
        <source>Color depth</source>
        <translation>Farbtiefe</translation>
    </message>
    <message>
        <source>Text tools</source>
        <translation>Textwerkzeuge</translation>
    </message>
    <message>
        <source>Icon extractor</source>
        <translation>Symbole entnehmen</translation>
    </message>
    <message>
        <source>Quick capture</source>
        <translation>Schnellaufnahme</translation>
    </message>
    <message>
        <source>Set as wallpaper</source>
        <translation>Als Hintergrundbild</translation>
    </message>
    <message>
        <source>About Velara Studio</source>
        <translation>Über Velara Studio</translation>
    </message>
    <message>
        <source>Scroll with the hand (H)</source>
        <translation>Mit der Hand verschieben (H)</translation>
    </message>
    <message>
        <source>Zoom in (Ctrl++)</source>
        <translation>Vergrößern (Strg++)</translation>
    </message>
    <message>
        <source>Zoom out (Ctrl+-)</source>
        <translation>Verkleinern (Strg+-)</translation>
    </message>
    <message>
        <source>Pictures that were not saved when the program ended</source>
        <translation>Bilder, die beim Ende des Programms nicht gespeichert waren</translation>
    </message>
    <message>
        <source>The next page or frame of the file, in a window of its own</source>
        <translation>Die nächste Seite der Datei oder das nächste Einzelbild, in einem eigenen Fenster</translation>
    </message>
    <message>
        <source>The page or frame of the file before this one</source>
        <translation>Die vorherige Seite der Datei oder das vorherige Einzelbild</translation>
    </message>
    <message>
        <source>What was done to this picture</source>
        <translation>Was mit diesem Bild gemacht wurde</translation>
    </message>
    <message>
        <source>Writes every changed picture to its own file</source>
        <translation>Schreibt jedes geänderte Bild in seine eigene Datei</translation>
    </message>
    <message>
        <source>Does the steps of a recipe to this picture, as one</source>
        <translation>Führt die Schritte eines Rezepts an diesem Bild aus, als einen einzigen</translation>
    </message>
    <message>
        <source>Keeps what was done to this picture, to do it to others</source>
        <translation>Bewahrt auf, was mit diesem Bild gemacht wurde, um es auf andere anzuwenden</translation>
    </message>
    <message>
        <source>Does a recipe to many pictures, beside the editor</source>
        <translation>Wendet ein Rezept auf viele Bilder an, neben dem Programm her</translation>
    </message>
    <message>
        <source>Mixes each pixel from those one pixel away: too little to hide anything</source>
        <translation>Mischt jedes Pixel mit denen im Abstand von einem Pixel: zu wenig, um etwas unkenntlich zu machen</translation>
    </message>
    <message>
        <source>Mixes each pixel from those two pixels away: too little to hide anything</source>
        <translation>Mischt jedes Pixel mit denen im Abstand von zwei Pixeln: zu wenig, um etwas unkenntlich zu machen</translation>
    </message>
    <message>
        <source>Mixes each pixel from those up to two pixels away: too little to hide anything</source>
        <translation>Mischt jedes Pixel mit denen im Abstand bis zu zwei Pixeln: zu wenig, um etwas unkenntlich zu machen</translation>
    </message>
    <message>
        <source>Squares of one colour: hides a face or a number plate</source>
        <translation>Einfarbige Quadrate: macht ein Gesicht oder Kennzeichen unkenntlich</translation>
    </message>
    <message>
        <source>&amp;Keys and Mouse ...</source>
        <translation>&amp;Tasten und Maus ...</translation>
    </message>
    <message>
        <source>The manual, at the page of what you are doing</source>
        <translation>Das Handbuch, auf der Seite zu dem, was Sie gerade tun</translation>
    </message>
</context>
<context>
    <name>Properties</name>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Linse</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>nothing was cut or copied</source>
        <translation>Es wurde nichts ausgeschnitten oder kopiert</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>What is pasted is larger than the picture.</source>
        <translation>Was eingefügt wird, ist größer als das Bild.</translation>
    </message>
    <message>
        <source>&amp;Enlarge the picture</source>
        <translation>Bild &amp;vergrößern</translation>
    </message>
    <message>
        <source>&amp;Keep its size</source>
        <translation>Größe &amp;beibehalten</translation>
    </message>
    <message>
        <source>The screen gave no picture.</source>
        <translation>Der Bildschirm lieferte kein Bild.</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message numerus="yes">
        <source>
and %n more</source>
        <translation>
            <numerusform>
und %n weitere</numerusform>
            <numerusform>
und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReadingBox</name>
    <message>
        <source>Reading %1 ...</source>
        <translation>%1 wird gelesen ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>it is damaged or not %1 picture</source>
        <translation>Die Datei ist beschädigt oder kein Bild der Art %1</translation>
    </message>
    <message>
        <source>it is damaged, and its reader gave up</source>
        <translation>Die Datei ist beschädigt, und das Lesen wurde aufgegeben</translation>
    </message>
    <message>
        <source>it is damaged, and its reader wanted what no picture needs</source>
        <translation>Die Datei ist beschädigt, und das Lesen verlangte, was kein Bild braucht</translation>
    </message>
    <message>
        <source>it is damaged: it has hardly any bytes for its %1 x %2 pixels</source>
        <translation>Die Datei ist beschädigt: Sie hat kaum Bytes für ihre %1 x %2 Pixel</translation>
    </message>
    <message>
        <source>it is damaged: some of its pixels are missing</source>
        <translation>Die Datei ist beschädigt: Ein Teil ihrer Pixel fehlt</translation>
    </message>
    <message>
        <source>it is damaged between its first row and its last</source>
        <translation>Die Datei ist zwischen ihrer ersten und ihrer letzten Zeile beschädigt</translation>
    </message>
    <message>
        <source>it is cut off: its end is missing</source>
        <translation>Die Datei ist abgeschnitten: Ihr Ende fehlt</translation>
    </message>
    <message>
        <source>it is wider or higher than 32767 pixels, or has more than 268 million pixels</source>
        <translation>Das Bild ist breiter oder höher als 32767 Pixel oder hat mehr als 268 Millionen Pixel</translation>
    </message>
    <message>
        <source>it needs more memory than reading a picture may take</source>
        <translation>Das Bild braucht mehr Speicher, als zum Lesen eines Bildes erlaubt ist</translation>
    </message>
    <message>
        <source>it is empty or can&apos;t be opened</source>
        <translation>Die Datei ist leer oder lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>it has more than two gigabytes</source>
        <translation>Die Datei hat mehr als zwei Gigabyte</translation>
    </message>
    <message>
        <source>its name has no extension to tell what it is</source>
        <translation>Ihr Name hat keine Endung, an der zu erkennen wäre, was sie ist</translation>
    </message>
    <message>
        <source>there is no reader for .%1 files</source>
        <translation>Dateien mit der Endung .%1 werden nicht gelesen</translation>
    </message>
    <message>
        <source>its reader could not be locked in (%1)</source>
        <translation>Das Leseprogramm ließ sich nicht einsperren (%1)</translation>
    </message>
    <message>
        <source>velara-decode-all, which reads %1 picture, can&apos;t be started</source>
        <translation>velara-decode-all, das Bilder der Art %1 liest, lässt sich nicht starten</translation>
    </message>
    <message>
        <source>this build lacks the library that reads %1 picture</source>
        <translation>Dieser Ausgabe des Programms fehlt die Bibliothek, die Bilder der Art %1 liest</translation>
    </message>
    <message>
        <source>the library that reads HEIF and AVIF pictures (libheif) is missing</source>
        <translation>Die Bibliothek, die HEIF- und AVIF-Bilder liest (libheif), fehlt</translation>
    </message>
    <message>
        <source>the library that reads JPEG XL pictures (libjxl) is missing</source>
        <translation>Die Bibliothek, die JPEG-XL-Bilder liest (libjxl), fehlt</translation>
    </message>
    <message>
        <source>the fonts that metafiles are drawn with are missing</source>
        <translation>Die Schriften zum Zeichnen von Metadateien fehlen</translation>
    </message>
    <message>
        <source>it has only %1 pages</source>
        <translation>Die Datei hat nur %1 Seiten</translation>
    </message>
    <message>
        <source>it has only one page</source>
        <translation>Die Datei hat nur eine Seite</translation>
    </message>
    <message>
        <source>reading it was given up</source>
        <translation>Das Lesen wurde abgebrochen</translation>
    </message>
    <message>
        <source>reading it took too long and was stopped</source>
        <translation>Das Lesen dauerte zu lange und wurde beendet</translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) gave a false answer</source>
        <translation>Das Programm, das Bilder liest (velara-decode), gab eine falsche Antwort</translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) can&apos;t be started</source>
        <translation>Das Programm, das Bilder liest (velara-decode), lässt sich nicht starten</translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) was not found</source>
        <translation>Das Programm, das Bilder liest (velara-decode), wurde nicht gefunden</translation>
    </message>
    <message>
        <source>a sanitizer stopped its reader</source>
        <translation>Eine Prüfung hat das Leseprogramm beendet</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>Diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>there is no permission to read it</source>
        <translation>Die Berechtigung zum Lesen fehlt</translation>
    </message>
    <message>
        <source>the system says &quot;%1&quot;</source>
        <translation>Das System meldet „%1“</translation>
    </message>
    <message>
        <source>the system tells nothing about it</source>
        <translation>Das System sagt nichts darüber</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>Es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>Es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>Die Datei ist leer</translation>
    </message>
    <message>
        <source>it has more than the %1 pixels that limits.conf allows</source>
        <translation>Das Bild hat mehr als die %1 Pixel, die limits.conf erlaubt</translation>
    </message>
    <message>
        <source>limits.conf has turned .%1 files off</source>
        <translation>limits.conf schließt Dateien mit der Endung .%1 aus</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>Dafür reicht der Speicher nicht</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>Der Speicher reicht nicht</translation>
    </message>
    <message>
        <source>no room in the Temp folder</source>
        <translation>Im Ordner Temp ist kein Platz</translation>
    </message>
    <message>
        <source>the Temp folder can&apos;t be written to</source>
        <translation>In den Ordner Temp lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division durch null</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Index außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation>Mindestgröße: 2 x 2</translation>
    </message>
    <message>
        <source>Internal Error</source>
        <translation>Interner Fehler</translation>
    </message>
    <message>
        <source>There was an error while saving! Please Restart Velara&apos;s Studio</source>
        <translation>Beim Speichern ist ein Fehler aufgetreten! Bitte starten Sie Velara Studio neu</translation>
    </message>
    <message>
        <source>Collection of ASCII based bitmap</source>
        <translation>Sammlung von Bitmaps in ASCII</translation>
    </message>
    <message>
        <source>A WebP picture has at most 16383 pixels a side.</source>
        <translation>Ein WebP-Bild hat höchstens 16383 Pixel je Seite.</translation>
    </message>
    <message>
        <source>This facility is currently turned Off!</source>
        <translation>Diese Funktion ist zurzeit abgeschaltet!</translation>
    </message>
    <message>
        <source>I don&apos;t know how to put a DIB on the clipboard! Copy as bitmap instead!!!</source>
        <translation>Ein DIB lässt sich nicht in die Zwischenablage legen! Kopieren Sie es stattdessen als Bitmap!!!</translation>
    </message>
    <message>
        <source>the page can&apos;t be read</source>
        <translation>Die Seite ist nicht lesbar</translation>
    </message>
    <message>
        <source>the page can&apos;t be written</source>
        <translation>Die Seite lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>the file can&apos;t be written</source>
        <translation>Die Datei lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>the print server does not answer</source>
        <translation>Der Druckserver antwortet nicht</translation>
    </message>
    <message>
        <source>there is no print server</source>
        <translation>Es gibt keinen Druckserver</translation>
    </message>
    <message>
        <source>there is no printer %1 any more</source>
        <translation>Den Drucker %1 gibt es nicht mehr</translation>
    </message>
    <message>
        <source>the print server has not taken the page</source>
        <translation>Der Druckserver hat die Seite nicht angenommen</translation>
    </message>
    <message>
        <source>%1 refused the page</source>
        <translation>%1 hat die Seite abgelehnt</translation>
    </message>
    <message>
        <source>The printer %1 is paused. The page waits in its queue.</source>
        <translation>Der Drucker %1 ist angehalten. Die Seite wartet in seiner Warteschlange.</translation>
    </message>
    <message>
        <source>The page is held in the queue of the printer %1.</source>
        <translation>Die Seite wird in der Warteschlange des Druckers %1 zurückgehalten.</translation>
    </message>
    <message>
        <source>The picture of the screen is all black.</source>
        <translation>Das Bild des Bildschirms ist ganz schwarz.</translation>
    </message>
    <message>
        <source>a profile that can&apos;t be read</source>
        <translation>ein nicht lesbares Profil</translation>
    </message>
    <message>
        <source>%1 bits a pixel in the file</source>
        <translation>%1 Bit je Pixel in der Datei</translation>
    </message>
    <message>
        <source>%1 x %2 dots per inch</source>
        <translation>%1 x %2 Punkte je Zoll</translation>
    </message>
    <message>
        <source>it is too large for a recipe</source>
        <translation>Die Datei ist zu groß für ein Rezept</translation>
    </message>
    <message>
        <source>a recipe begins with &quot;%1&quot;</source>
        <translation>Ein Rezept beginnt mit „%1“</translation>
    </message>
    <message>
        <source>the recipe is of version %1, and this program knows those up to %2</source>
        <translation>Das Rezept hat die Version %1, und dieses Programm kennt sie bis %2</translation>
    </message>
    <message>
        <source>%1 is no step; of the options only %2 SHAPE is</source>
        <translation>%1 ist kein Schritt; von den Optionen ist es nur %2 SHAPE</translation>
    </message>
    <message>
        <source>%1 is a command word and takes no arguments</source>
        <translation>%1 ist ein Befehlswort und nimmt keine Argumente</translation>
    </message>
    <message>
        <source>the closing bracket is missing</source>
        <translation>Die schließende Klammer fehlt</translation>
    </message>
    <message>
        <source>there is no pixel in it</source>
        <translation>Es enthält kein Pixel</translation>
    </message>
    <message>
        <source>PBM, PGM and PPM: If the bitmap has a bit depth of 1, the file is saved as a PBM file. If the bitmap has a bit depth of 8, the file is saved as a PGM file. If the bitmap has a bit depth of 24, the file is saved as a PPM file. Other bit depths are not supported. The file you requested is saved as 24-bit True Color (.ppm) format.</source>
        <translation>PBM, PGM und PPM: Hat die Bitmap eine Farbtiefe von 1 Bit, wird sie als PBM-Datei gespeichert, bei 8 Bit als PGM-Datei und bei 24 Bit als PPM-Datei. Andere Farbtiefen werden nicht unterstützt. Die gewünschte Datei wird mit 24 Bit Echtfarben (.ppm) gespeichert.</translation>
    </message>
    <message>
        <source>it needs %1 of memory, more than half of the %2 that are free</source>
        <translation>Es braucht %1 Speicher, mehr als die Hälfte der %2, die frei sind</translation>
    </message>
    <message>
        <source>the picture would have %1</source>
        <translation>Das Bild hätte %1</translation>
    </message>
    <message>
        <source>no pixels</source>
        <translation>keine Pixel</translation>
    </message>
    <message>
        <source>%1 x %2 pixels; a side has at most %3</source>
        <translation>%1 x %2 Pixel; eine Seite hat höchstens %3</translation>
    </message>
    <message>
        <source>%1 megapixels (%2 x %3 pixels); at most %4 are possible</source>
        <translation>%1 Megapixel (%2 x %3 Pixel); möglich sind höchstens %4</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>its pixels are of a kind that isn&apos;t read: %1 x %2 bits</source>
        <translation>Pixel dieser Art werden nicht gelesen: %1 x %2 Bit</translation>
    </message>
    <message>
        <source>it has fewer inks than cyan, magenta and yellow</source>
        <translation>Das Bild hat weniger Druckfarben als Cyan, Magenta und Gelb</translation>
    </message>
</context>
<context>
    <name>Save for Web</name>
    <message>
        <source>Windows</source>
        <translation>Windows</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Windows 256</source>
        <translation>Windows 256</translation>
    </message>
    <message>
        <source>GIF-2 Colors</source>
        <translation>GIF, 2 Farben</translation>
    </message>
    <message>
        <source>2 Colors</source>
        <translation>2 Farben</translation>
    </message>
    <message>
        <source>GIF-4 Colors</source>
        <translation>GIF, 4 Farben</translation>
    </message>
    <message>
        <source>4 Colors</source>
        <translation>4 Farben</translation>
    </message>
    <message>
        <source>GIF-8 Colors</source>
        <translation>GIF, 8 Farben</translation>
    </message>
    <message>
        <source>8 Colors</source>
        <translation>8 Farben</translation>
    </message>
    <message>
        <source>GIF-16 Colors</source>
        <translation>GIF, 16 Farben</translation>
    </message>
    <message>
        <source>16 Colors</source>
        <translation>16 Farben</translation>
    </message>
    <message>
        <source>GIF-32 Colors</source>
        <translation>GIF, 32 Farben</translation>
    </message>
    <message>
        <source>32 Colors</source>
        <translation>32 Farben</translation>
    </message>
    <message>
        <source>GIF-64 Colors</source>
        <translation>GIF, 64 Farben</translation>
    </message>
    <message>
        <source>64 Colors</source>
        <translation>64 Farben</translation>
    </message>
    <message>
        <source>GIF-128 Colors</source>
        <translation>GIF, 128 Farben</translation>
    </message>
    <message>
        <source>128 Colors</source>
        <translation>128 Farben</translation>
    </message>
    <message>
        <source>GIF-256 Colors</source>
        <translation>GIF, 256 Farben</translation>
    </message>
    <message>
        <source>256 Colors</source>
        <translation>256 Farben</translation>
    </message>
    <message>
        <source>BMP-2 Colors</source>
        <translation>BMP, 2 Farben</translation>
    </message>
    <message>
        <source>BMP-16 Colors</source>
        <translation>BMP, 16 Farben</translation>
    </message>
    <message>
        <source>BMP-256 Colors</source>
        <translation>BMP, 256 Farben</translation>
    </message>
    <message>
        <source>BMP-16 bit</source>
        <translation>BMP, 16 Bit</translation>
    </message>
    <message>
        <source>16 bit</source>
        <translation>16 Bit</translation>
    </message>
    <message>
        <source>BMP-24 bit</source>
        <translation>BMP, 24 Bit</translation>
    </message>
    <message>
        <source>24 bit</source>
        <translation>24 Bit</translation>
    </message>
    <message>
        <source>PNG-8 bit</source>
        <translation>PNG, 8 Bit</translation>
    </message>
    <message>
        <source>8 bit</source>
        <translation>8 Bit</translation>
    </message>
    <message>
        <source>PNG-24 bit</source>
        <translation>PNG, 24 Bit</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>PCX-24 bit (Compressed)</source>
        <translation>PCX, 24 Bit (komprimiert)</translation>
    </message>
    <message>
        <source>PCX-24 bit (Uncompressed)</source>
        <translation>PCX, 24 Bit (unkomprimiert)</translation>
    </message>
    <message>
        <source>TGA-24 bit (Compressed)</source>
        <translation>TGA, 24 Bit (komprimiert)</translation>
    </message>
    <message>
        <source>TGA-24 bit (Uncompressed)</source>
        <translation>TGA, 24 Bit (unkomprimiert)</translation>
    </message>
    <message>
        <source>TIFF-24 bit (Uncompressed)</source>
        <translation>TIFF, 24 Bit (unkomprimiert)</translation>
    </message>
    <message>
        <source>WebP</source>
        <translation>WebP</translation>
    </message>
    <message>
        <source>WebP (Lossless)</source>
        <translation>WebP (verlustfrei)</translation>
    </message>
    <message>
        <source>AVIF</source>
        <translation>AVIF</translation>
    </message>
    <message>
        <source>JPEG XL</source>
        <translation>JPEG XL</translation>
    </message>
    <message>
        <source>MS Map</source>
        <translation>MS-Palette</translation>
    </message>
    <message>
        <source>Optimal</source>
        <translation>Optimal</translation>
    </message>
    <message>
        <source>Fixed Color</source>
        <translation>Feste Farben</translation>
    </message>
    <message>
        <source>VGA</source>
        <translation>VGA</translation>
    </message>
    <message>
        <source>iNet</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>MS 256</source>
        <translation>MS 256</translation>
    </message>
    <message>
        <source>Fixed Grey</source>
        <translation>Feste Graustufen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binär</translation>
    </message>
    <message>
        <source>Ordered</source>
        <translation>Geordnet</translation>
    </message>
    <message>
        <source>Haftone</source>
        <translation>Halbton</translation>
    </message>
    <message>
        <source>Forward Diag</source>
        <translation>Diagonal vorwärts</translation>
    </message>
    <message>
        <source>Backward Diag</source>
        <translation>Diagonal rückwärts</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Waagerecht</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Ungerade</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation>Gleich</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Schlecht</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>Superb</source>
        <translation>Hervorragend</translation>
    </message>
</context>
<context>
    <name>Search words</name>
    <message>
        <source>blank empty create</source>
        <translation>leer anlegen erstellen</translation>
    </message>
    <message>
        <source>load import file</source>
        <translation>laden importieren Datei</translation>
    </message>
    <message>
        <source>scan paper</source>
        <translation>scannen Papier einscannen</translation>
    </message>
    <message>
        <source>screenshot whole screen</source>
        <translation>Bildschirmfoto ganzer Bildschirm Screenshot</translation>
    </message>
    <message>
        <source>back revert mistake</source>
        <translation>zurück Fehler undo</translation>
    </message>
    <message>
        <source>again forward</source>
        <translation>erneut vorwärts redo</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>duplizieren verdoppeln</translation>
    </message>
    <message>
        <source>paste as new picture</source>
        <translation>als neues Bild einfügen</translation>
    </message>
    <message>
        <source>resize scale percent width height pixels larger smaller</source>
        <translation>skalieren Prozent Breite Höhe Pixel größer kleiner ändern</translation>
    </message>
    <message>
        <source>border margin room enlarge</source>
        <translation>Rand Platz vergrößern Arbeitsfläche</translation>
    </message>
    <message>
        <source>turn portrait landscape</source>
        <translation>wenden Hochformat Querformat</translation>
    </message>
    <message>
        <source>turn angle degrees straighten horizon</source>
        <translation>wenden Winkel Grad geraderichten Horizont</translation>
    </message>
    <message>
        <source>export rename convert format</source>
        <translation>exportieren umbenennen umwandeln Format</translation>
    </message>
    <message>
        <source>insert clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>cut out trim margins</source>
        <translation>beschneiden freistellen Ränder</translation>
    </message>
    <message>
        <source>settings preferences configure</source>
        <translation>Einstellungen konfigurieren</translation>
    </message>
    <message>
        <source>overlay blend double exposure two pictures</source>
        <translation>überlagern mischen Doppelbelichtung zwei Bilder</translation>
    </message>
    <message>
        <source>resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>export gif jpeg png small kilobytes compress quality</source>
        <translation>exportieren gif jpeg png klein Kilobyte komprimieren Qualität</translation>
    </message>
    <message>
        <source>palette indexed 256 16 colours reduce dither</source>
        <translation>Palette indiziert 256 16 Farben verringern Dithering</translation>
    </message>
    <message>
        <source>write letters caption font</source>
        <translation>schreiben Buchstaben Beschriftung Schrift</translation>
    </message>
    <message>
        <source>desktop background</source>
        <translation>Desktop Bildschirmhintergrund</translation>
    </message>
    <message>
        <source>thumbnails folder gallery</source>
        <translation>Vorschaubilder Ordner Galerie</translation>
    </message>
    <message>
        <source>crash unsaved restore lost</source>
        <translation>Absturz ungespeichert verloren</translation>
    </message>
    <message>
        <source>screenshot window screen</source>
        <translation>Bildschirmfoto Fenster Screenshot</translation>
    </message>
    <message>
        <source>ico extract</source>
        <translation>ico Icon extrahieren</translation>
    </message>
    <message>
        <source>tiff gif animation icon</source>
        <translation>tiff gif Animation Symbol</translation>
    </message>
    <message>
        <source>default program double click</source>
        <translation>Standardprogramm Doppelklick</translation>
    </message>
    <message>
        <source>quit close</source>
        <translation>verlassen schließen</translation>
    </message>
    <message>
        <source>second window</source>
        <translation>zweites Fenster</translation>
    </message>
    <message>
        <source>exif camera date place gps profile metadata information facts</source>
        <translation>exif Kamera Datum Ort gps Profil Metadaten Informationen</translation>
    </message>
    <message>
        <source>version licence</source>
        <translation>Version Lizenz</translation>
    </message>
    <message>
        <source>deselect</source>
        <translation>abwählen</translation>
    </message>
    <message>
        <source>undo steps states back</source>
        <translation>rückgängig Schritte Zustände zurück</translation>
    </message>
    <message>
        <source>every open</source>
        <translation>jedes offene</translation>
    </message>
    <message>
        <source>macro action script batch replay</source>
        <translation>Makro Aktion Skript Stapel wiederholen</translation>
    </message>
    <message>
        <source>macro action script batch record</source>
        <translation>Makro Aktion Skript Stapel aufzeichnen</translation>
    </message>
    <message>
        <source>batch many pictures macro convert all</source>
        <translation>Stapel viele Bilder Makro alle umwandeln</translation>
    </message>
    <message>
        <source>negative</source>
        <translation>Negativ</translation>
    </message>
    <message>
        <source>black and white grey monochrome</source>
        <translation>schwarzweiß grau einfarbig</translation>
    </message>
    <message>
        <source>crisp focus</source>
        <translation>scharf Fokus</translation>
    </message>
    <message>
        <source>soft unsharp</source>
        <translation>weich unscharf</translation>
    </message>
    <message>
        <source>vintage brown</source>
        <translation>alt braun</translation>
    </message>
    <message>
        <source>vintage brown old</source>
        <translation>alt braun</translation>
    </message>
    <message>
        <source>mirror left right</source>
        <translation>links rechts</translation>
    </message>
    <message>
        <source>mirror top bottom upside down</source>
        <translation>oben unten kopfüber</translation>
    </message>
    <message>
        <source>zoom 100 % actual pixels</source>
        <translation>Zoom 100 % tatsächliche Pixel</translation>
    </message>
    <message>
        <source>turn right clockwise</source>
        <translation>rechts herum im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>turn upside down</source>
        <translation>auf den Kopf stellen</translation>
    </message>
    <message>
        <source>turn left counterclockwise</source>
        <translation>links herum gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>tint hue</source>
        <translation>tönen Farbton</translation>
    </message>
    <message>
        <source>brightness lighter darker exposure</source>
        <translation>heller dunkler Belichtung</translation>
    </message>
    <message>
        <source>lighter darker exposure</source>
        <translation>heller dunkler Belichtung</translation>
    </message>
    <message>
        <source>fade dull</source>
        <translation>flau blass</translation>
    </message>
    <message>
        <source>hide a face censor anonymous number plate mosaic blocks</source>
        <translation>Gesicht unkenntlich zensieren anonym Kennzeichen Mosaik</translation>
    </message>
    <message>
        <source>recolour change colour</source>
        <translation>umfärben Farbe ändern</translation>
    </message>
    <message>
        <source>grain</source>
        <translation>Körnung</translation>
    </message>
    <message>
        <source>manual guide documentation how</source>
        <translation>handbuch anleitung dokumentation wie</translation>
    </message>
    <message>
        <source>keys shortcuts keyboard</source>
        <translation>tasten tastenkürzel tastatur</translation>
    </message>
</context>
<context>
    <name>Textures</name>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Canvas</source>
        <translation>Leinwand</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Leinen</translation>
    </message>
    <message>
        <source>Brick</source>
        <translation>Ziegel</translation>
    </message>
    <message>
        <source>Stone</source>
        <translation>Stein</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sand</translation>
    </message>
    <message>
        <source>Wood</source>
        <translation>Holz</translation>
    </message>
    <message>
        <source>Weave</source>
        <translation>Gewebe</translation>
    </message>
    <message>
        <source>Ripple</source>
        <translation>Wellen</translation>
    </message>
    <message>
        <source>Leather</source>
        <translation>Leder</translation>
    </message>
    <message>
        <source>Frosted glass</source>
        <translation>Milchglas</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Esc or right button: drop</source>
        <translation>Esc oder rechte Taste: verwerfen</translation>
    </message>
    <message>
        <source>Space: fix and go on · Esc: drop</source>
        <translation>Leertaste: festlegen und weiter · Esc: verwerfen</translation>
    </message>
    <message>
        <source>Click: lay down · Space: fix and go on · Esc: drop</source>
        <translation>Klick: ablegen · Leertaste: festlegen und weiter · Esc: verwerfen</translation>
    </message>
    <message>
        <source>Space: corner · Enter: close · Esc: drop</source>
        <translation>Leertaste: Ecke · Eingabe: schließen · Esc: verwerfen</translation>
    </message>
    <message>
        <source>Click: corner · Enter or double click: close · Esc: drop</source>
        <translation>Klick: Ecke · Eingabe oder Doppelklick: schließen · Esc: verwerfen</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Farbe aufnehmen</translation>
    </message>
    <message>
        <source>Move the selection</source>
        <translation>Auswahl verschieben</translation>
    </message>
    <message>
        <source>What moves</source>
        <translation>Was verschoben wird</translation>
    </message>
    <message>
        <source>Move Selection Only</source>
        <translation>Nur die Auswahl</translation>
    </message>
    <message>
        <source>Move Content Only</source>
        <translation>Nur den Inhalt</translation>
    </message>
    <message>
        <source>&amp;Use this intensity</source>
        <translation>&amp;Diese Stärke nutzen</translation>
    </message>
    <message>
        <source>Instead of the selection&apos;s pressure</source>
        <translation>Anstelle der Stärke der Auswahl</translation>
    </message>
    <message>
        <source>Opaque Intensity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Mode of selecting</source>
        <translation>Art des Auswählens</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Abziehen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Shape of the selection</source>
        <translation>Form der Auswahl</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Polygon/Free hand</source>
        <translation>Polygon/Freihand</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>&amp;Move selection</source>
        <translation>Auswahl &amp;verschieben</translation>
    </message>
    <message>
        <source>Move region / move pixels</source>
        <translation>Bereich verschieben / Pixel verschieben</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Mode of the brush</source>
        <translation>Art des Pinsels</translation>
    </message>
    <message>
        <source>Current color</source>
        <translation>Aktuelle Farbe</translation>
    </message>
    <message>
        <source>Current stamp</source>
        <translation>Aktueller Stempel</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Abdunkeln</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aufhellen</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>Soften</source>
        <translation>Abmildern</translation>
    </message>
    <message>
        <source>Soften (Overlay)</source>
        <translation>Abmildern (Überlagern)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensität</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>What fills</source>
        <translation>Womit gefüllt wird</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Free hand</source>
        <translation>Freihand</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>Pol. sides</source>
        <translation>Pol.-Ecken</translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation>Airbrush</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Stempel</translation>
    </message>
    <message>
        <source>&amp;Mask color :</source>
        <translation>&amp;Maskenfarbe :</translation>
    </message>
    <message>
        <source>Use mask color</source>
        <translation>Maskenfarbe verwenden</translation>
    </message>
    <message>
        <source>Mask color</source>
        <translation>Maskenfarbe</translation>
    </message>
    <message>
        <source>&amp;Stamp mask</source>
        <translation>Stem&amp;pelmaske</translation>
    </message>
    <message>
        <source>Current color stamp</source>
        <translation>Stempel in aktueller Farbe</translation>
    </message>
    <message>
        <source>&amp;Clear back</source>
        <translation>Spur &amp;leeren</translation>
    </message>
    <message>
        <source>Clear stamp track</source>
        <translation>Die Spur des Stempels leeren</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Form of the gradient</source>
        <translation>Form des Verlaufs</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Circular</source>
        <translation>Kreisförmig</translation>
    </message>
    <message>
        <source>First color</source>
        <translation>Erste Farbe</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>Zweite Farbe</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Amount %</source>
        <translation>Stärke %</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Bleistift</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
</context>
<context>
    <name>velara::Appearance</name>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>High contrast, light</source>
        <translation>Hoher Kontrast, hell</translation>
    </message>
    <message>
        <source>High contrast, dark</source>
        <translation>Hoher Kontrast, dunkel</translation>
    </message>
</context>
<context>
    <name>velara::Bars</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>Not available yet</source>
        <translation>Noch nicht verfügbar</translation>
    </message>
    <message>
        <source> (not available yet)</source>
        <translation> (noch nicht verfügbar)</translation>
    </message>
</context>
<context>
    <name>velara::Capture</name>
    <message>
        <source>Capture</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Waiting for the desktop&apos;s picture ...</source>
        <translation>Es wird auf das Bild des Bildschirms gewartet ...</translation>
    </message>
    <message>
        <source>the screen gave no picture</source>
        <translation>Der Bildschirm lieferte kein Bild</translation>
    </message>
</context>
<context>
    <name>velara::Documents</name>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
</context>
<context>
    <name>velara::FEffect</name>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Zeigen </translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Apply the effect</source>
        <translation>Den Effekt anwenden</translation>
    </message>
</context>
<context>
    <name>velara::FGradient</name>
    <message>
        <source>The gradient</source>
        <translation>Der Verlauf</translation>
    </message>
</context>
<context>
    <name>velara::FStamp</name>
    <message>
        <source>Stamp sub-Folder Not Found!</source>
        <translation>Unterordner mit Stempeln nicht gefunden!</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Stempel</translation>
    </message>
    <message>
        <source>Stamp files</source>
        <translation>Stempeldateien</translation>
    </message>
    <message>
        <source>The chosen stamp</source>
        <translation>Der gewählte Stempel</translation>
    </message>
    <message>
        <source>&lt;Stamps&gt; subfolder not found.</source>
        <translation>Unterordner &lt;Stamps&gt; nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>velara::FWeb</name>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Optimized</source>
        <translation>Optimiert</translation>
    </message>
    <message>
        <source>Original, above the optimized</source>
        <translation>Original, über dem optimierten Bild</translation>
    </message>
    <message>
        <source>Optimized, below the original</source>
        <translation>Optimiert, unter dem Original</translation>
    </message>
    <message>
        <source>Customized Save Options </source>
        <translation>Speichern mit eigenen Einstellungen </translation>
    </message>
    <message>
        <source>Files of this format have no place for it</source>
        <translation>Dateien dieses Formats haben keinen Platz dafür</translation>
    </message>
    <message>
        <source>Enter value between 1 to 99 !</source>
        <translation>Geben Sie einen Wert von 1 bis 99 ein !</translation>
    </message>
    <message>
        <source>Please Choose a higher image format!</source>
        <translation>Bitte wählen Sie ein höherwertiges Bildformat!</translation>
    </message>
    <message>
        <source>The current format cannot be applied to the image!</source>
        <translation>Das gewählte Format passt nicht zu diesem Bild!</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written%2.</source>
        <translation>%1 lässt sich nicht schreiben%2.</translation>
    </message>
    <message>
        <source>%L1 bytes</source>
        <translation>%L1 Byte</translation>
    </message>
    <message>
        <source>%1 % of the original file</source>
        <translation>%1 % der Originaldatei</translation>
    </message>
    <message>
        <source>no loss</source>
        <translation>kein Verlust</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>No quality makes it as small as %1 KB.</source>
        <translation>Mit keiner Qualität wird die Datei so klein wie %1 KB.</translation>
    </message>
    <message>
        <source>No number of colors makes it as small as %1 KB.</source>
        <translation>Mit keiner Farbenzahl wird die Datei so klein wie %1 KB.</translation>
    </message>
    <message>
        <source>Save Optimized As</source>
        <translation>Optimiertes Bild speichern unter</translation>
    </message>
    <message>
        <source>File format</source>
        <translation>Dateiformat</translation>
    </message>
    <message>
        <source>Choose a format</source>
        <translation>Format wählen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>&amp;All formats ...</source>
        <translation>&amp;Alle Formate ...</translation>
    </message>
    <message>
        <source>Size and loss of this picture in every format</source>
        <translation>Größe und Verlust dieses Bildes in jedem Format</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>Wie im Format</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Dithering</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>&amp;Dither</source>
        <translation>&amp;Dithering</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Modus</translation>
    </message>
    <message>
        <source>Flip &amp;horizontal</source>
        <translation>&amp;Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Flip &amp;vertical</source>
        <translation>&amp;Vertikal spiegeln</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>&amp;Invertieren</translation>
    </message>
    <message>
        <source>I&amp;nterlaced</source>
        <translation>I&amp;nterlaced</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>JPEG-Qualität</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Custom  1 To 99</source>
        <translation>Eigener Wert  1 bis 99</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>&amp;Qualität</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>Fit to so many KB</source>
        <translation>Auf so viele KB verkleinern</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>Fit &amp;to</source>
        <translation>Höchs&amp;tens</translation>
    </message>
    <message>
        <source>Camera data</source>
        <translation>Kameradaten</translation>
    </message>
    <message>
        <source>&amp;Keep camera data</source>
        <translation>&amp;Kameradaten behalten</translation>
    </message>
    <message>
        <source>without the pla&amp;ce</source>
        <translation>ohne den &amp;Ort</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Farbtiefe</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
    <message>
        <source>Exact size and loss</source>
        <translation>Genaue Größe und Verlust</translation>
    </message>
    <message>
        <source>The file is being written</source>
        <translation>Die Datei wird geschrieben</translation>
    </message>
    <message numerus="yes">
        <source>%n colors</source>
        <translation>
            <numerusform>%n Farbe</numerusform>
            <numerusform>%n Farben</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::FolderRun</name>
    <message>
        <source>
It ended before its time.</source>
        <translation>
Es endete vorzeitig.</translation>
    </message>
</context>
<context>
    <name>velara::FrameRequests</name>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>Es gibt keine Aktion „%1“.</translation>
    </message>
    <message>
        <source> can&apos;t be read: it is no file of this computer</source>
        <translation> ist nicht lesbar: Es ist keine Datei dieses Rechners</translation>
    </message>
</context>
<context>
    <name>velara::MaskChoice</name>
    <message>
        <source>Mask color</source>
        <translation>Maskenfarbe</translation>
    </message>
    <message>
        <source>What has this color becomes transparent</source>
        <translation>Was diese Farbe hat, wird transparent</translation>
    </message>
</context>
<context>
    <name>velara::PreviewPane</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>There is no permission to look into it.</source>
        <translation>Die Berechtigung zum Öffnen fehlt.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Wird gelesen ...</translation>
    </message>
    <message>
        <source>No picture is selected.</source>
        <translation>Es ist kein Bild ausgewählt.</translation>
    </message>
    <message>
        <source>Not a picture.</source>
        <translation>Kein Bild.</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 Pixel</translation>
    </message>
</context>
<context>
    <name>velara::Recipes</name>
    <message>
        <source>Recipe (*.recipe)</source>
        <translation>Rezept (*.recipe)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Nothing was done to this picture yet.</source>
        <translation>Mit diesem Bild wurde noch nichts gemacht.</translation>
    </message>
    <message>
        <source>All of this was made by hand: there is nothing that could be done to another picture.</source>
        <translation>Alles wurde von Hand gemacht: Es gibt nichts, was sich auf ein anderes Bild anwenden ließe.</translation>
    </message>
    <message>
        <source>%1 of %2 steps were made by hand, and can&apos;t be done to another picture:
%3</source>
        <translation>%1 von %2 Schritten wurden von Hand gemacht und lassen sich nicht auf ein anderes Bild anwenden:
%3</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Rezept</translation>
    </message>
    <message>
        <source>&amp;Leave them out</source>
        <translation>&amp;Weglassen</translation>
    </message>
    <message>
        <source>The command is on the clipboard.</source>
        <translation>Der Befehl ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Save recipe</source>
        <translation>Rezept speichern</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation>%1 lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Run recipe</source>
        <translation>Rezept anwenden</translation>
    </message>
    <message>
        <source>: there is no step in it</source>
        <translation>: Es enthält keinen Schritt</translation>
    </message>
    <message>
        <source>The picture is as it was. The recipe %1 ended:
%2</source>
        <translation>Das Bild ist unverändert. Das Rezept %1 brach ab:
%2</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message numerus="yes">
        <source>Run on %n pictures.</source>
        <translation>
            <numerusform>Auf %n Bild angewendet.</numerusform>
            <numerusform>Auf %n Bilder angewendet.</numerusform>
        </translation>
    </message>
    <message>
        <source>These pictures are as they were:
</source>
        <translation>Diese Bilder sind unverändert:
</translation>
    </message>
    <message>
        <source>No other picture is open.</source>
        <translation>Es ist kein anderes Bild geöffnet.</translation>
    </message>
    <message>
        <source>What was done to %1</source>
        <translation>Was mit %1 gemacht wurde</translation>
    </message>
    <message>
        <source>Another file ...</source>
        <translation>Andere Datei ...</translation>
    </message>
    <message>
        <source>Choose a recipe</source>
        <translation>Rezept wählen</translation>
    </message>
    <message>
        <source>This recipe can&apos;t be run:
</source>
        <translation>Dieses Rezept lässt sich nicht anwenden:
</translation>
    </message>
</context>
<context>
    <name>velara::Recovery</name>
    <message>
        <source>Changed on %1</source>
        <translation>Geändert am %1</translation>
    </message>
    <message>
        <source>1 step</source>
        <translation>1 Schritt</translation>
    </message>
    <message>
        <source>texts that are not merged yet</source>
        <translation>noch nicht eingefügte Texte</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>Es gibt nichts wiederherzustellen.</translation>
    </message>
    <message>
        <source>Discard the unsaved changes of %1?
They can&apos;t be recovered after that.</source>
        <translation>Die nicht gespeicherten Änderungen von %1 verwerfen?
Sie lassen sich danach nicht wiederherstellen.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message numerus="yes">
        <source>%n steps</source>
        <translation>
            <numerusform>%n Schritt</numerusform>
            <numerusform>%n Schritte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::SaneScanner</name>
    <message>
        <source>The program velara-scan is missing.</source>
        <translation>Das Programm velara-scan fehlt.</translation>
    </message>
    <message>
        <source>The scanner&apos;s driver has failed.</source>
        <translation>Der Treiber des Scanners ist abgestürzt.</translation>
    </message>
</context>
<context>
    <name>velara::SaveDialog</name>
    <message>
        <source>&quot;%1&quot; has the ending of another kind of file.</source>
        <translation>„%1“ hat die Endung einer anderen Art von Datei.</translation>
    </message>
    <message>
        <source>Save as &quot;%1&quot;</source>
        <translation>Als „%1“ speichern</translation>
    </message>
    <message>
        <source>Keep &quot;%1&quot;</source>
        <translation>„%1“ beibehalten</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ist schon vorhanden.
Möchten Sie die Datei ersetzen?</translation>
    </message>
</context>
<context>
    <name>velara::Startup</name>
    <message>
        <source>Velara Studio is already running!</source>
        <translation>Velara Studio läuft bereits!</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be written to.
Steps back stay in memory, as many as fit, and settings will not be kept.</source>
        <translation>In den Ordner „%1“ lässt sich nicht schreiben.
Schritte zurück bleiben im Speicher, so viele hineinpassen, und Einstellungen werden nicht aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>velara::fAboutFacts</name>
    <message>
        <source>picture files</source>
        <translation>Bilddateien</translation>
    </message>
    <message>
        <source>GIF and palettes</source>
        <translation>GIF und Paletten</translation>
    </message>
    <message>
        <source>metafiles</source>
        <translation>Metadateien</translation>
    </message>
    <message>
        <source>scanners</source>
        <translation>Scanner</translation>
    </message>
    <message>
        <source>printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>vector arithmetic</source>
        <translation>Vektorrechnung</translation>
    </message>
    <message>
        <source>the cage of the decoders</source>
        <translation>der Käfig der Leseprogramme</translation>
    </message>
    <message>
        <source>icons</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>&lt;b&gt;Velara Studio %1&lt;/b&gt;&lt;p&gt;Free software under the GNU General Public License, version 2 or later, without any warranty.&lt;/p&gt;&lt;p&gt;It stands on&lt;/p&gt;</source>
        <translation>&lt;b&gt;Velara Studio %1&lt;/b&gt;&lt;p&gt;Freie Software unter der GNU General Public License, Version 2 oder später, ohne jede Gewährleistung.&lt;/p&gt;&lt;p&gt;Sie beruht auf&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Version, license and libraries</source>
        <translation>Version, Lizenz und Bibliotheken</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Sch&amp;ließen</translation>
    </message>
</context>
<context>
    <name>velara::fAcquire</name>
    <message>
        <source>Acquire</source>
        <translation>Einlesen</translation>
    </message>
    <message>
        <source>Select S&amp;ource ...</source>
        <translation>&amp;Quelle wählen ...</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>Fortschritt des Scannens</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>&amp;Scannen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>No source</source>
        <translation>Keine Quelle</translation>
    </message>
    <message>
        <source>Looking for scanners ...</source>
        <translation>Scanner werden gesucht ...</translation>
    </message>
    <message>
        <source>no scanner was found</source>
        <translation>Es wurde kein Scanner gefunden</translation>
    </message>
    <message>
        <source>Asking the scanner ...</source>
        <translation>Der Scanner wird befragt ...</translation>
    </message>
    <message>
        <source>Scanning ...</source>
        <translation>Es wird gescannt ...</translation>
    </message>
    <message>
        <source>Scanning page %1 ...</source>
        <translation>Seite %1 wird gescannt ...</translation>
    </message>
    <message>
        <source>The scanner says: </source>
        <translation>Der Scanner meldet: </translation>
    </message>
</context>
<context>
    <name>velara::fAssociation</name>
    <message>
        <source>File Association</source>
        <translation>Dateizuordnung</translation>
    </message>
    <message>
        <source>The picture formats that Velara Studio knows. Which program opens
a file is chosen in the settings of your desktop.</source>
        <translation>Die Bildformate, die Velara Studio kennt. Welches Programm eine
Datei öffnet, wird in den Einstellungen Ihres Desktops gewählt.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formate</translation>
    </message>
</context>
<context>
    <name>velara::fBed</name>
    <message>
        <source>Preview of the scanner&apos;s bed</source>
        <translation>Vorschau der Auflagefläche</translation>
    </message>
</context>
<context>
    <name>velara::fBrowse</name>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Pictures of the folder</source>
        <translation>Bilder des Ordners</translation>
    </message>
    <message>
        <source>Browse For Graphic Filles</source>
        <translation>Grafikdateien durchsuchen</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Persönlicher Ordner</translation>
    </message>
    <message>
        <source>Last folders</source>
        <translation>Letzte Ordner</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
    </message>
</context>
<context>
    <name>velara::fCanvas</name>
    <message>
        <source>Canvas size</source>
        <translation>Leinwandgröße</translation>
    </message>
    <message>
        <source>Proportions</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message>
        <source>Defined</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Choose a step</source>
        <translation>Stufe wählen</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>What is Canvas Size?</source>
        <translation>Was ist die Leinwandgröße?</translation>
    </message>
    <message>
        <source>The canvas is the area that the picture stands on. A larger canvas adds black room around the picture, a smaller one cuts its edges; the pixels themselves keep their size. Drag the picture, or press an arrow, to say where it stands.</source>
        <translation>Die Leinwand ist die Fläche, auf der das Bild liegt. Eine größere fügt schwarzen Rand hinzu, eine kleinere schneidet das Bild ab; die Pixel selbst behalten ihre Größe. Ziehen Sie das Bild oder drücken Sie einen Pfeil, um festzulegen, wo es liegt.</translation>
    </message>
</context>
<context>
    <name>velara::fCanvasView</name>
    <message>
        <source>Canvas</source>
        <translation>Leinwand</translation>
    </message>
    <message>
        <source>Picture on the canvas</source>
        <translation>Bild auf der Leinwand</translation>
    </message>
</context>
<context>
    <name>velara::fCapture</name>
    <message>
        <source>Capture Screen</source>
        <translation>Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>How to capture</source>
        <translation>Art der Aufnahme</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>&amp;Capture</source>
        <translation>&amp;Aufnehmen</translation>
    </message>
    <message>
        <source>C&amp;ustom</source>
        <translation>&amp;Benutzerdefiniert</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>The whole screen</source>
        <translation>Der ganze Bildschirm</translation>
    </message>
    <message>
        <source>A rectangle of the screen</source>
        <translation>Ein Rechteck des Bildschirms</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Schreibtisch</translation>
    </message>
    <message>
        <source>Desktop means the main screen where you go through before opening any windows</source>
        <translation>Schreibtisch ist der Hauptbildschirm, wie er vor dem Öffnen von Fenstern aussieht</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Vordergrund</translation>
    </message>
    <message>
        <source>Foreground means the Current window you are working with i.e, The Velara&apos;s Studio Environment.</source>
        <translation>Vordergrund ist das Fenster, in dem Sie gerade arbeiten, also Velara Studio selbst.</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Background means any windows behind the current active window including your Desktop. Desktop is the background if there is no other visible windows behind Velara&apos;s Studio</source>
        <translation>Hintergrund sind alle Fenster hinter dem aktiven Fenster samt Ihrem Schreibtisch. Ohne andere sichtbare Fenster hinter Velara Studio ist der Schreibtisch der Hintergrund</translation>
    </message>
    <message>
        <source>What to capture</source>
        <translation>Was aufgenommen wird</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n Sekunde</numerusform>
            <numerusform>%n Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Sofort</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>&amp;Verzögerung</translation>
    </message>
    <message>
        <source>With the &amp;pointer</source>
        <translation>Mit &amp;Mauszeiger</translation>
    </message>
</context>
<context>
    <name>velara::fCaptureRectangle</name>
    <message>
        <source>Capture Rectangle</source>
        <translation>Rechteck aufnehmen</translation>
    </message>
    <message>
        <source>Drag a rectangle; Esc leaves</source>
        <translation>Ziehen Sie ein Rechteck auf; Esc beendet</translation>
    </message>
    <message>
        <source>Drag a rectangle; with Shift it stays, with grips</source>
        <translation>Ziehen Sie ein Rechteck auf; mit Umschalt bleibt es stehen, mit Griffen</translation>
    </message>
    <message>
        <source>Enter: all, or the rectangle</source>
        <translation>Eingabe: alles oder das Rechteck</translation>
    </message>
    <message>
        <source>Esc: leave</source>
        <translation>Esc: beenden</translation>
    </message>
    <message>
        <source>W: the window below the pointer</source>
        <translation>W: das Fenster unter dem Zeiger</translation>
    </message>
</context>
<context>
    <name>velara::fCellGrid</name>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Cell %1: %2</source>
        <translation>Zelle %1: %2</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
</context>
<context>
    <name>velara::fColorButton</name>
    <message>
        <source>Red %1, green %2, blue %3</source>
        <translation>Rot %1, Grün %2, Blau %3</translation>
    </message>
</context>
<context>
    <name>velara::fColorDepth</name>
    <message>
        <source>2 Colors (1 Bit)</source>
        <translation>2 Farben (1 Bit)</translation>
    </message>
    <message>
        <source>16 Colors (4 Bit)</source>
        <translation>16 Farben (4 Bit)</translation>
    </message>
    <message>
        <source>256 Colors (8 Bit)</source>
        <translation>256 Farben (8 Bit)</translation>
    </message>
    <message>
        <source>(15 Bit)</source>
        <translation>(15 Bit)</translation>
    </message>
    <message>
        <source>(16 Bit)</source>
        <translation>(16 Bit)</translation>
    </message>
    <message>
        <source>32,000 Colors (24 Bit)</source>
        <translation>32.000 Farben (24 Bit)</translation>
    </message>
    <message>
        <source>64,000 Colors (24 Bit)</source>
        <translation>64.000 Farben (24 Bit)</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Optimized</source>
        <translation>Optimiert</translation>
    </message>
    <message>
        <source>Image Color Depth</source>
        <translation>Farbtiefe des Bildes</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Select an option</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Color depth</source>
        <translation>Farbtiefe</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Full size</source>
        <translation>Volle Größe</translation>
    </message>
    <message>
        <source>1/%1 of the size</source>
        <translation>1/%1 der Größe</translation>
    </message>
    <message>
        <source>Optimized to</source>
        <translation>Optimiert auf</translation>
    </message>
    <message>
        <source>Send the Optimized Image to </source>
        <translation>Das optimierte Bild senden an </translation>
    </message>
    <message>
        <source>Optimized Saver </source>
        <translation>Optimiert speichern </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Zoom: %1</source>
        <translation>Zoom: %1</translation>
    </message>
</context>
<context>
    <name>velara::fColourCell</name>
    <message>
        <source>Red %1, green %2, blue %3</source>
        <translation>Rot %1, Grün %2, Blau %3</translation>
    </message>
</context>
<context>
    <name>velara::fDisplay</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>%1, %2: red %3, green %4, blue %5</source>
        <translation>%1, %2: Rot %3, Grün %4, Blau %5</translation>
    </message>
</context>
<context>
    <name>velara::fEffectsPage</name>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Apply the effect</source>
        <translation>Den Effekt anwenden</translation>
    </message>
    <message>
        <source>Apply the file as a texture</source>
        <translation>Die Datei als Textur anwenden</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>%1: a double click applies it</source>
        <translation>%1: Ein Doppelklick wendet ihn an</translation>
    </message>
    <message>
        <source>Effects, up and down</source>
        <translation>Effekte, auf und ab</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>A&amp;mount</source>
        <translation>&amp;Stärke</translation>
    </message>
    <message>
        <source>Texture files</source>
        <translation>Texturdateien</translation>
    </message>
    <message>
        <source>Fol&amp;der...</source>
        <translation>&amp;Ordner...</translation>
    </message>
    <message>
        <source>Choose the folder of the texture files</source>
        <translation>Den Ordner mit Texturdateien wählen</translation>
    </message>
    <message>
        <source>No texture files in %1</source>
        <translation>Keine Texturdateien in %1</translation>
    </message>
    <message>
        <source>Texture files of %1</source>
        <translation>Texturdateien aus %1</translation>
    </message>
    <message>
        <source>There is no picture open.</source>
        <translation>Es ist kein Bild geöffnet.</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Textur</translation>
    </message>
    <message>
        <source>%1 can&apos;t be used as a texture: %2</source>
        <translation>%1 ist als Textur nicht brauchbar: %2</translation>
    </message>
</context>
<context>
    <name>velara::fFilter</name>
    <message>
        <source>Working. Esc ends it.</source>
        <translation>Es wird gerechnet. Esc bricht ab.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>%1 color</source>
        <translation>Farbe %1</translation>
    </message>
    <message>
        <source>Banks</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>%1 comes from</source>
        <translation>%1 kommt aus</translation>
    </message>
    <message>
        <source>%1 comes from %2</source>
        <translation>%1 kommt aus %2</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invertieren</translation>
    </message>
    <message>
        <source>Invert %1</source>
        <translation>%1 invertieren</translation>
    </message>
    <message>
        <source>Kill</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Kill %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>Glass</source>
        <translation>Glas</translation>
    </message>
    <message>
        <source>%1 glass</source>
        <translation>Glas: %1</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Curtain Effects</source>
        <translation>Vorhangeffekte</translation>
    </message>
    <message>
        <source>%1 curtain</source>
        <translation>Vorhang: %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>Real Time</source>
        <translation>Sofort anwenden</translation>
    </message>
    <message>
        <source>Runs the filter on the picture and closes</source>
        <translation>Wendet den Filter auf das Bild an und schließt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Before: click to place the center</source>
        <translation>Vorher: Klick setzt die Mitte</translation>
    </message>
    <message>
        <source>Before: click to pick a color</source>
        <translation>Vorher: Klick nimmt eine Farbe auf</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>After, pixel for pixel</source>
        <translation>Nachher, Pixel für Pixel</translation>
    </message>
    <message>
        <source>Drag it, or click in a picture beside it, to see another part</source>
        <translation>Ziehen Sie es oder klicken Sie in eines der Bilder daneben, um einen anderen Teil zu sehen</translation>
    </message>
</context>
<context>
    <name>velara::fFolderRun</name>
    <message>
        <source>Run on a Folder</source>
        <translation>Auf einen Ordner anwenden</translation>
    </message>
    <message>
        <source>Add a picture</source>
        <translation>Bild hinzufügen</translation>
    </message>
    <message>
        <source>Add a folder of pictures</source>
        <translation>Ordner mit Bildern hinzufügen</translation>
    </message>
    <message>
        <source>-done</source>
        <translation>-fertig</translation>
    </message>
    <message>
        <source>Where the new files go</source>
        <translation>Wohin die neuen Dateien kommen</translation>
    </message>
    <message>
        <source>Go &amp;on</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Pau&amp;se</source>
        <translation>Pau&amp;se</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Every original is replaced by its result. They can&apos;t be brought back.</source>
        <translation>Jedes Original wird durch sein Ergebnis ersetzt. Die Originale lassen sich nicht zurückholen.</translation>
    </message>
    <message>
        <source>&amp;Replace the originals</source>
        <translation>Originale &amp;ersetzen</translation>
    </message>
    <message>
        <source>%1 of about %2</source>
        <translation>%1 von etwa %2</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 fertig</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1 übersprungen</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 a minute</source>
        <translation>%1 je Minute</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>%1 can&apos;t be started: %2</source>
        <translation>%1 lässt sich nicht starten: %2</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>Protokoll: %1</translation>
    </message>
    <message>
        <source>It is still at work.</source>
        <translation>Es wird noch gearbeitet.</translation>
    </message>
    <message>
        <source>&amp;Stop it and close</source>
        <translation>&amp;Abbrechen und schließen</translation>
    </message>
    <message>
        <source>Leave it, and skip the picture</source>
        <translation>Behalten und das Bild überspringen</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Add a number to the new name</source>
        <translation>Dem neuen Namen eine Nummer geben</translation>
    </message>
    <message>
        <source>Replace it if it is older than the picture</source>
        <translation>Ersetzen, wenn sie älter ist als das Bild</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Rezept</translation>
    </message>
    <message>
        <source>R&amp;ecipe</source>
        <translation>R&amp;ezept</translation>
    </message>
    <message>
        <source>Pictures and folders</source>
        <translation>Bilder und Ordner</translation>
    </message>
    <message>
        <source>with the folders &amp;below</source>
        <translation>mit &amp;Unterordnern</translation>
    </message>
    <message>
        <source>With the folders below</source>
        <translation>Mit Unterordnern</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Entfe&amp;rnen</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>&amp;Picture ...</source>
        <translation>&amp;Bild ...</translation>
    </message>
    <message>
        <source>&amp;Folder ...</source>
        <translation>&amp;Ordner ...</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Pict&amp;ures</source>
        <translation>Bil&amp;der</translation>
    </message>
    <message>
        <source>Target folder</source>
        <translation>Zielordner</translation>
    </message>
    <message>
        <source>F&amp;older ...</source>
        <translation>Ord&amp;ner ...</translation>
    </message>
    <message>
        <source>Choose the target folder</source>
        <translation>Zielordner wählen</translation>
    </message>
    <message>
        <source>o&amp;ver the originals, which are lost</source>
        <translation>über die Ori&amp;ginale, die dabei verloren gehen</translation>
    </message>
    <message>
        <source>Over the originals, which are lost</source>
        <translation>Über die Originale, die dabei verloren gehen</translation>
    </message>
    <message>
        <source>Names of the new files</source>
        <translation>Namen der neuen Dateien</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Each as it is</source>
        <translation>Jedes wie es ist</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Where a file has the name already</source>
        <translation>Wenn eine Datei schon so heißt</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>&amp;Qualität</translation>
    </message>
    <message>
        <source>&amp;Target</source>
        <translation>&amp;Ziel</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>N&amp;amen</translation>
    </message>
    <message>
        <source>Form&amp;at</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>E&amp;xisting file</source>
        <translation>&amp;Vorhandene Datei</translation>
    </message>
    <message>
        <source>Pictures done</source>
        <translation>Fertige Bilder</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>Pictures that failed; Enter or a double click opens one</source>
        <translation>Fehlgeschlagene Bilder; Eingabe oder ein Doppelklick öffnet eines</translation>
    </message>
    <message>
        <source>A double click opens the picture</source>
        <translation>Ein Doppelklick öffnet das Bild</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>S&amp;tarten</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Cancel or close</source>
        <translation>Abbrechen oder schließen</translation>
    </message>
    <message>
        <source>Pictures that fa&amp;iled</source>
        <translation>Fehlgeschlagene B&amp;ilder</translation>
    </message>
    <message>
        <source>{name}  the picture&apos;s own name
{ext}  the ending of its format
{n:04}  its number, with four digits
{dir}  its folder below the one that was chosen
{width}, {height}  its size in pixels
Such as {name}-web.{ext}</source>
        <translation>{name}  der eigene Name des Bildes
{ext}  die Endung seines Formats
{n:04}  seine Nummer, mit vier Ziffern
{dir}  sein Ordner unter dem gewählten
{width}, {height}  seine Größe in Pixeln
Zum Beispiel {name}-web.{ext}</translation>
    </message>
</context>
<context>
    <name>velara::fGeometry</name>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation>Mindestgröße: 2 x 2</translation>
    </message>
    <message>
        <source>Maximum size: 256 megapixels</source>
        <translation>Höchstgröße: 256 Megapixel</translation>
    </message>
</context>
<context>
    <name>velara::fHelp</name>
    <message>
        <source>What to do, and the keys for it</source>
        <translation>Was zu tun ist und die Tasten dafür</translation>
    </message>
    <message>
        <source>Move the picture in its window</source>
        <translation>Das Bild in seinem Fenster verschieben</translation>
    </message>
    <message>
        <source>Middle button, or the hand (H)</source>
        <translation>Mittlere Taste oder die Hand (H)</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>Auf und ab rollen</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>Seitwärts rollen</translation>
    </message>
    <message>
        <source>Shift + wheel</source>
        <translation>Umschalt + Rad</translation>
    </message>
    <message>
        <source>Zoom about the pointer</source>
        <translation>Um den Zeiger herum vergrößern</translation>
    </message>
    <message>
        <source>Ctrl + wheel</source>
        <translation>Strg + Rad</translation>
    </message>
    <message>
        <source>Drop what is under way</source>
        <translation>Verwerfen, was gerade entsteht</translation>
    </message>
    <message>
        <source>Esc, or the right button</source>
        <translation>Esc oder die rechte Taste</translation>
    </message>
    <message>
        <source>Draw without a mouse: move a crosshair by a pixel, or ten</source>
        <translation>Ohne Maus zeichnen: ein Fadenkreuz um ein Pixel bewegen, oder um zehn</translation>
    </message>
    <message>
        <source>Arrow keys, with Shift</source>
        <translation>Pfeiltasten, mit Umschalt</translation>
    </message>
    <message>
        <source>Press at the crosshair, and release</source>
        <translation>Am Fadenkreuz drücken und loslassen</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Fix a text, a paste or moved pixels, and go on</source>
        <translation>Text, Eingefügtes oder verschobene Pixel festlegen und weitermachen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Corner of a polygon</source>
        <translation>Ecke eines Polygons</translation>
    </message>
    <message>
        <source>Click, or Space while dragging</source>
        <translation>Klick, oder Leertaste beim Ziehen</translation>
    </message>
    <message>
        <source>Close a polygon</source>
        <translation>Ein Polygon schließen</translation>
    </message>
    <message>
        <source>Enter, or a double click</source>
        <translation>Eingabe oder ein Doppelklick</translation>
    </message>
    <message>
        <source>To the tools and their settings, and back</source>
        <translation>Zu den Werkzeugen und ihren Einstellungen und zurück</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Was zu tun ist</translation>
    </message>
    <message>
        <source>Mouse and keys</source>
        <translation>Maus und Tasten</translation>
    </message>
    <message>
        <source>On a picture</source>
        <translation>Auf einem Bild</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menüs</translation>
    </message>
    <message>
        <source>Keys and Mouse</source>
        <translation>Tasten und Maus</translation>
    </message>
</context>
<context>
    <name>velara::fHexBox</name>
    <message>
        <source>Color code</source>
        <translation>Farbcode</translation>
    </message>
    <message>
        <source>#rrggbb, #rgb or a name such as teal; Enter takes it</source>
        <translation>#rrggbb, #rgb oder ein englischer Name wie teal; Eingabe übernimmt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color. Enter it as #rrggbb, as #rgb or by its name.</source>
        <translation>„%1“ ist keine Farbe. Geben Sie sie als #rrggbb, als #rgb oder mit ihrem englischen Namen ein.</translation>
    </message>
</context>
<context>
    <name>velara::fHistory</name>
    <message>
        <source>Steps, oldest first</source>
        <translation>Schritte, der älteste zuerst</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Am Anfang</translation>
    </message>
    <message>
        <source>A change</source>
        <translation>Eine Änderung</translation>
    </message>
    <message>
        <source>painted by hand</source>
        <translation>von Hand gemalt</translation>
    </message>
    <message>
        <source>
in a selection</source>
        <translation>
in einer Auswahl</translation>
    </message>
    <message>
        <source>
This step is not kept any more.</source>
        <translation>
Dieser Schritt wird nicht mehr aufbewahrt.</translation>
    </message>
    <message>
        <source>All steps</source>
        <translation>Alle Schritte</translation>
    </message>
    <message>
        <source>From this step on</source>
        <translation>Ab diesem Schritt</translation>
    </message>
    <message>
        <source>&amp;Copy as command</source>
        <translation>Als Befehl &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Save recipe ...</source>
        <translation>Rezept &amp;speichern ...</translation>
    </message>
    <message>
        <source>&amp;Run from here on the other open pictures</source>
        <translation>Ab hier auf die &amp;anderen offenen Bilder anwenden</translation>
    </message>
</context>
<context>
    <name>velara::fIcon</name>
    <message>
        <source>Extract Icon</source>
        <translation>Symbol entnehmen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sch&amp;ließen</translation>
    </message>
</context>
<context>
    <name>velara::fIconBar</name>
    <message>
        <source>What is in the frame, magnified</source>
        <translation>Was im Rahmen ist, vergrößert</translation>
    </message>
    <message>
        <source>Icon Maker</source>
        <translation>Symbole ausschneiden</translation>
    </message>
    <message>
        <source>Drag the frame over the picture.
Arrow keys move it by a pixel.</source>
        <translation>Ziehen Sie den Rahmen über das Bild.
Pfeiltasten bewegen ihn um ein Pixel.</translation>
    </message>
    <message>
        <source>Icons taken</source>
        <translation>Übernommene Symbole</translation>
    </message>
    <message>
        <source>Icons taken:</source>
        <translation>Übernommene Symbole:</translation>
    </message>
    <message>
        <source>Size of the icon: + and -</source>
        <translation>Größe des Symbols: + und -</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Take the icon: Enter</source>
        <translation>Das Symbol übernehmen: Eingabe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Back to the icon extractor: Esc</source>
        <translation>Zurück zum Entnehmen von Symbolen: Esc</translation>
    </message>
</context>
<context>
    <name>velara::fIconBrowse</name>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Icon Extractor: Select Folder</source>
        <translation>Symbole entnehmen: Ordner wählen</translation>
    </message>
    <message>
        <source>The chosen folder</source>
        <translation>Der gewählte Ordner</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sch&amp;ließen</translation>
    </message>
</context>
<context>
    <name>velara::fIconMaker</name>
    <message>
        <source>Icon Maker</source>
        <translation>Symbole ausschneiden</translation>
    </message>
    <message>
        <source>Drag the frame of the icon; Enter takes, Esc closes</source>
        <translation>Ziehen Sie den Rahmen des Symbols; Eingabe übernimmt, Esc schließt</translation>
    </message>
</context>
<context>
    <name>velara::fIconPicture</name>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>16 to 256 in one &amp;file</source>
        <translation>16 bis 256 in einer &amp;Datei</translation>
    </message>
    <message>
        <source>Select Required Options</source>
        <translation>Einstellungen wählen</translation>
    </message>
    <message>
        <source>Use &amp;Mask Color</source>
        <translation>&amp;Maskenfarbe verwenden</translation>
    </message>
    <message>
        <source>Icon Preview</source>
        <translation>Symbolvorschau</translation>
    </message>
    <message>
        <source>&amp;Save As</source>
        <translation>&amp;Speichern unter</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>A click takes the mask color from here</source>
        <translation>Ein Klick nimmt die Maskenfarbe von hier</translation>
    </message>
    <message>
        <source>There is no picture open.</source>
        <translation>Es ist kein Bild geöffnet.</translation>
    </message>
    <message>
        <source>Width and height are whole numbers from 1 to %1.</source>
        <translation>Breite und Höhe sind ganze Zahlen von 1 bis %1.</translation>
    </message>
    <message>
        <source>%1 times as large</source>
        <translation>%1-mal so groß</translation>
    </message>
    <message>
        <source>Save Icon as</source>
        <translation>Symbol speichern unter</translation>
    </message>
    <message>
        <source>Icon File</source>
        <translation>Symboldatei</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation>%1 lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>velara::fIconSeries</name>
    <message>
        <source>Custom Icon Extractor</source>
        <translation>Symbole vom Bildschirm</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>Use Mas&amp;k Color</source>
        <translation>Mas&amp;kenfarbe verwenden</translation>
    </message>
    <message>
        <source>What to capture</source>
        <translation>Was aufgenommen wird</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Schreibtisch</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Vordergrund</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>A&amp;ufnehmen</translation>
    </message>
    <message>
        <source>Captures the screen and cuts icons out of it</source>
        <translation>Nimmt den Bildschirm auf und schneidet Symbole aus</translation>
    </message>
    <message>
        <source>Icons cut out</source>
        <translation>Ausgeschnittene Symbole</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>&amp;Extract Icons of the Selected Images to</source>
        <translation>Symbole d&amp;er gewählten Bilder speichern in</translation>
    </message>
    <message>
        <source>Folder of the icons</source>
        <translation>Ordner der Symbole</translation>
    </message>
    <message>
        <source>....</source>
        <translation>....</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>S&amp;peichern</translation>
    </message>
    <message>
        <source>Select the folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>No Images to extract!</source>
        <translation>Es gibt keine Bilder zum Entnehmen!</translation>
    </message>
    <message>
        <source>Folder does not Exists! Please Enter a valid folder path</source>
        <translation>Den Ordner gibt es nicht! Bitte geben Sie einen gültigen Ordner ein</translation>
    </message>
    <message numerus="yes">
        <source>%n icon Files Saved!</source>
        <translation>
            <numerusform>%n Symboldatei gespeichert!</numerusform>
            <numerusform>%n Symboldateien gespeichert!</numerusform>
        </translation>
    </message>
    <message>
        <source>Not written: %1</source>
        <translation>Nicht geschrieben: %1</translation>
    </message>
    <message numerus="yes">
        <source> and %n more</source>
        <translation>
            <numerusform> und %n weitere</numerusform>
            <numerusform> und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::fImage</name>
    <message>
        <source>Picture window</source>
        <translation>Bildfenster</translation>
    </message>
    <message>
        <source>Horizontal scroll bar</source>
        <translation>Waagerechte Bildlaufleiste</translation>
    </message>
    <message>
        <source>Vertical scroll bar</source>
        <translation>Senkrechte Bildlaufleiste</translation>
    </message>
    <message>
        <source>This image has changed.
Do you want to save it ?</source>
        <translation>Dieses Bild wurde geändert.
Möchten Sie es speichern ?</translation>
    </message>
</context>
<context>
    <name>velara::fLayerCanvas</name>
    <message>
        <source>Picture with its texts</source>
        <translation>Bild mit seinen Texten</translation>
    </message>
    <message>
        <source>Text %1</source>
        <translation>Text %1</translation>
    </message>
</context>
<context>
    <name>velara::fLayerList</name>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Texts, up and down</source>
        <translation>Texte, auf und ab</translation>
    </message>
    <message>
        <source>Empty text</source>
        <translation>Leerer Text</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 zeigen</translation>
    </message>
</context>
<context>
    <name>velara::fLayers</name>
    <message>
        <source>Regular</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Strike out</source>
        <translation>Durchgestrichen</translation>
    </message>
    <message>
        <source>Save for Web</source>
        <translation>Für das Web speichern</translation>
    </message>
    <message>
        <source>Color Depth</source>
        <translation>Farbtiefe</translation>
    </message>
    <message>
        <source>Picture with its texts</source>
        <translation>Bild mit seinen Texten</translation>
    </message>
    <message>
        <source>Color of the text</source>
        <translation>Farbe des Textes</translation>
    </message>
    <message>
        <source>Apply Text</source>
        <translation>Text einfügen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>New text</source>
        <translation>Neuer Text</translation>
    </message>
    <message>
        <source>Delete text</source>
        <translation>Text löschen</translation>
    </message>
    <message>
        <source>Send Optimized Image To</source>
        <translation>Optimiertes Bild senden an</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Zoom to fit</source>
        <translation>Ganzes Bild</translation>
    </message>
    <message>
        <source>Type. A drag marks letters, at the frame it moves the text. Esc ends typing.</source>
        <translation>Tippen Sie. Ziehen markiert Buchstaben, am Rahmen verschiebt es den Text. Esc beendet das Tippen.</translation>
    </message>
    <message>
        <source>Drag the text or its grips. A click or Enter puts the caret into it.</source>
        <translation>Ziehen Sie den Text oder seine Griffe. Ein Klick oder Eingabe setzt die Schreibmarke hinein.</translation>
    </message>
    <message>
        <source>Click on the picture where a text shall stand, and type.</source>
        <translation>Klicken Sie im Bild dorthin, wo ein Text stehen soll, und tippen Sie.</translation>
    </message>
    <message>
        <source>
The texts are not in the image yet.
Do you want to merge them ?</source>
        <translation>
Die Texte sind noch nicht im Bild.
Möchten Sie sie einfügen ?</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Bring this picture to the front first.</source>
        <translation>Holen Sie zuerst dieses Bild nach vorn.</translation>
    </message>
</context>
<context>
    <name>velara::fMain</name>
    <message>
        <source>First color</source>
        <translation>Erste Farbe</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>Zweite Farbe</translation>
    </message>
    <message>
        <source>There is no picture to work on: open one first, or make a new one.</source>
        <translation>Es gibt kein Bild zum Bearbeiten: Öffnen Sie zuerst eines oder legen Sie ein neues an.</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>
There is no picture in it.</source>
        <translation>
Es ist kein Bild darin.</translation>
    </message>
    <message>
        <source>
&quot;.%1&quot; is no format that is written.</source>
        <translation>
Das Format „.%1“ wird nicht geschrieben.</translation>
    </message>
    <message>
        <source>Unexpected error loading image</source>
        <translation>Unerwarteter Fehler beim Laden des Bildes</translation>
    </message>
    <message>
        <source>This file is not there any more:
</source>
        <translation>Diese Datei gibt es nicht mehr:
</translation>
    </message>
    <message>
        <source>These files are not there any more:
</source>
        <translation>Diese Dateien gibt es nicht mehr:
</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>%1 wird gelesen ...</translation>
    </message>
    <message>
        <source> can&apos;t be read as a picture.</source>
        <translation> ist nicht als Bild lesbar.</translation>
    </message>
    <message>
        <source> was not read</source>
        <translation> wurde nicht gelesen</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>No picture has changed.</source>
        <translation>Kein Bild wurde geändert.</translation>
    </message>
    <message>
        <source>These are written to their own files:
</source>
        <translation>Diese werden in ihre eigenen Dateien geschrieben:
</translation>
    </message>
    <message>
        <source>These need a name, for which you are asked:
</source>
        <translation>Diese brauchen einen Namen, nach dem Sie gefragt werden:
</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alle speichern</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>&amp;Keep camera data</source>
        <translation>&amp;Kameradaten behalten</translation>
    </message>
    <message>
        <source>without the &amp;place</source>
        <translation>ohne den &amp;Ort</translation>
    </message>
    <message>
        <source>Saving %1 ... Esc ends it</source>
        <translation>%1 wird gespeichert ... Esc bricht ab</translation>
    </message>
    <message>
        <source>%1 is not saved.</source>
        <translation>%1 ist nicht gespeichert.</translation>
    </message>
    <message>
        <source>Unexpected error saving image</source>
        <translation>Unerwarteter Fehler beim Speichern des Bildes</translation>
    </message>
    <message>
        <source>Of a kind that is not read: %1</source>
        <translation>Von einer Art, die nicht gelesen wird: %1</translation>
    </message>
    <message>
        <source>It is %1 picture; saved under this name it would become %2 picture.</source>
        <translation>Es ist ein Bild der Art %1; unter diesem Namen gespeichert würde es ein Bild der Art %2.</translation>
    </message>
    <message>
        <source>There is no page behind this one.</source>
        <translation>Nach dieser Seite kommt keine mehr.</translation>
    </message>
    <message>
        <source>There is no page before this one.</source>
        <translation>Vor dieser Seite kommt keine.</translation>
    </message>
    <message>
        <source>
Do you want to save it under another name ?</source>
        <translation>
Möchten Sie es unter einem anderen Namen speichern ?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>Ü&amp;berschreiben</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation>Mindestgröße: 2 x 2</translation>
    </message>
    <message>
        <source>Apply Text</source>
        <translation>Text einfügen</translation>
    </message>
    <message>
        <source>the texts of another picture wait for OK or Exit</source>
        <translation>Die Texte eines anderen Bildes warten auf OK oder Schließen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>A step could not be kept: this is the last one that stands.</source>
        <translation>Ein Schritt ließ sich nicht aufbewahren: Dies ist der letzte, der noch da ist.</translation>
    </message>
    <message>
        <source>A step that could not be kept was passed over.</source>
        <translation>Ein Schritt, der sich nicht aufbewahren ließ, wurde übersprungen.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>After a crash this picture could not be recovered: %1.</source>
        <translation>Nach einem Absturz ließe sich dieses Bild nicht wiederherstellen: %1.</translation>
    </message>
    <message>
        <source>This step can&apos;t be undone: %1.</source>
        <translation>Dieser Schritt lässt sich nicht rückgängig machen: %1.</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation>Leinwandgröße</translation>
    </message>
    <message>
        <source>Error getting subkey value.</source>
        <translation>Fehler beim Lesen des Unterschlüssels.</translation>
    </message>
    <message>
        <source>Error Setting subkey value.</source>
        <translation>Fehler beim Setzen des Unterschlüssels.</translation>
    </message>
    <message numerus="yes">
        <source>It has %n pages; this one alone would be left of it.</source>
        <translation>
            <numerusform>Die Datei hat %n Seite; nur diese bliebe übrig.</numerusform>
            <numerusform>Die Datei hat %n Seiten; nur diese eine bliebe davon übrig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
It has %n pages; this one alone would be left of it.</source>
        <translation>
            <numerusform>
Die Datei hat %n Seite; nur diese bliebe übrig.</numerusform>
            <numerusform>
Die Datei hat %n Seiten; nur diese eine bliebe davon übrig.</numerusform>
        </translation>
    </message>
    <message>
        <source>The program that reads pictures (velara-decode) was not found. Is the package being removed? What is open can be changed and saved.</source>
        <translation>Das Programm, das Bilder liest (velara-decode), wurde nicht gefunden. Wird das Paket gerade entfernt? Was geöffnet ist, kann bearbeitet und gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>velara::fManual</name>
    <message>
        <source>Page of the manual</source>
        <translation>Seite des Handbuchs</translation>
    </message>
    <message>
        <source>Pages of the manual</source>
        <translation>Seiten des Handbuchs</translation>
    </message>
    <message>
        <source>Words to look for in the manual</source>
        <translation>Wörter, die im Handbuch gesucht werden</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Words to look for</source>
        <translation>Suchwörter</translation>
    </message>
</context>
<context>
    <name>velara::fNew</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Standard sizes</source>
        <translation>Standardgrößen</translation>
    </message>
    <message>
        <source>&lt;Custom&gt;</source>
        <translation>&lt;Eigene&gt;</translation>
    </message>
    <message>
        <source>Custom:</source>
        <translation>Eigene Größe:</translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation>&amp;Seitenverhältnis beibehalten</translation>
    </message>
</context>
<context>
    <name>velara::fOrientation</name>
    <message>
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>90º left</source>
        <translation>90º nach links</translation>
    </message>
    <message>
        <source>90º right</source>
        <translation>90º nach rechts</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Canvas orientation</source>
        <translation>Ausrichtung der Leinwand</translation>
    </message>
    <message>
        <source>Flip &amp;vertical</source>
        <translation>&amp;Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Flip vertical</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Flip &amp;horizontal</source>
        <translation>&amp;Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Flip horizontal</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Flip image</source>
        <translation>Bild spiegeln</translation>
    </message>
</context>
<context>
    <name>velara::fOverlay</name>
    <message>
        <source>Image Merging</source>
        <translation>Bilder verschmelzen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Select image to overlay:</source>
        <translation>Bild zum Überlagern:</translation>
    </message>
    <message>
        <source>Image to overlay</source>
        <translation>Bild zum Überlagern</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>&amp;Tiled</source>
        <translation>&amp;Gekachelt</translation>
    </message>
    <message>
        <source>&amp;Mask color</source>
        <translation>&amp;Maskenfarbe</translation>
    </message>
    <message>
        <source>Mask color</source>
        <translation>Maskenfarbe</translation>
    </message>
    <message>
        <source>Create &amp;new image</source>
        <translation>&amp;Neues Bild anlegen</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Left offset</source>
        <translation>Abstand links</translation>
    </message>
    <message>
        <source>Top offset</source>
        <translation>Abstand oben</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>No picture is open.</source>
        <translation>Es ist kein Bild geöffnet.</translation>
    </message>
    <message>
        <source>Not merged: %1</source>
        <translation>Nicht verschmolzen: %1</translation>
    </message>
</context>
<context>
    <name>velara::fOwnSize</name>
    <message>
        <source>&amp;Own size</source>
        <translation>&amp;Eigene Größe</translation>
    </message>
    <message>
        <source>Printed width</source>
        <translation>Gedruckte Breite</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Printed height</source>
        <translation>Gedruckte Höhe</translation>
    </message>
    <message>
        <source>Printed size in percent</source>
        <translation>Gedruckte Größe in Prozent</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
</context>
<context>
    <name>velara::fPalette</name>
    <message>
        <source>Select Color</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>Saturation and lightness</source>
        <translation>Sättigung und Helligkeit</translation>
    </message>
    <message>
        <source>Click to pick and to store in the cell; double click for the large picker</source>
        <translation>Klick wählt und legt in der Zelle ab; Doppelklick öffnet den großen Farbwähler</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Current pick</source>
        <translation>Aktuelle Wahl</translation>
    </message>
    <message>
        <source>First color</source>
        <translation>Erste Farbe</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>Zweite Farbe</translation>
    </message>
    <message>
        <source>Swap the colors</source>
        <translation>Farben vertauschen</translation>
    </message>
    <message>
        <source>&amp;Link</source>
        <translation>&amp;Verknüpfen</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verknüpfen</translation>
    </message>
    <message>
        <source>Link with current color</source>
        <translation>Mit der aktuellen Farbe verknüpfen</translation>
    </message>
    <message>
        <source>Cell %1</source>
        <translation>Zelle %1</translation>
    </message>
    <message>
        <source>Preset colors</source>
        <translation>Vorgegebene Farben</translation>
    </message>
    <message>
        <source>%1 degrees</source>
        <translation>%1 Grad</translation>
    </message>
</context>
<context>
    <name>velara::fPaste</name>
    <message>
        <source>Picture of the clip</source>
        <translation>Bild des Clips</translation>
    </message>
    <message>
        <source>Clip History</source>
        <translation>Verlauf der Clips</translation>
    </message>
    <message>
        <source>Clips, oldest first</source>
        <translation>Clips, der älteste zuerst</translation>
    </message>
    <message>
        <source>Enter pastes the clip</source>
        <translation>Eingabe fügt den Clip ein</translation>
    </message>
    <message>
        <source>Scroll the clips</source>
        <translation>Clips rollen</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>Clip %1</translation>
    </message>
    <message>
        <source>Opaque &amp;Intensity</source>
        <translation>&amp;Deckkraft</translation>
    </message>
    <message>
        <source>Opaque Intensity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Clip History: 
%1</source>
        <translation>Verlauf der Clips: 
%1</translation>
    </message>
    <message>
        <source>Minimum cut size: 2 x 2</source>
        <translation>Mindestgröße zum Ausschneiden: 2 x 2</translation>
    </message>
    <message>
        <source>Minimum copy size: 2 x 2</source>
        <translation>Mindestgröße zum Kopieren: 2 x 2</translation>
    </message>
</context>
<context>
    <name>velara::fPicker</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Color Box</source>
        <translation>Farbfenster</translation>
    </message>
    <message>
        <source>Enter an Integer Value Between 0 and %1</source>
        <translation>Geben Sie eine ganze Zahl von 0 bis %1 ein</translation>
    </message>
    <message>
        <source>&amp;Picker</source>
        <translation>&amp;Farbwähler</translation>
    </message>
    <message>
        <source>&amp;Preset</source>
        <translation>&amp;Vorgaben</translation>
    </message>
    <message>
        <source>Color field</source>
        <translation>Farbfeld</translation>
    </message>
    <message>
        <source>Color strip</source>
        <translation>Farbstreifen</translation>
    </message>
    <message>
        <source>%1 on the strip</source>
        <translation>%1 auf dem Streifen</translation>
    </message>
    <message>
        <source>Color model</source>
        <translation>Farbmodell</translation>
    </message>
    <message>
        <source>He&amp;x</source>
        <translation>He&amp;x</translation>
    </message>
    <message>
        <source>Preset colors</source>
        <translation>Vorgegebene Farben</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Eigene...</translation>
    </message>
    <message>
        <source>Safe Palette (216)</source>
        <translation>Sichere Palette (216)</translation>
    </message>
    <message>
        <source>Put the color into the selected cell</source>
        <translation>Die Farbe in die gewählte Zelle legen</translation>
    </message>
    <message>
        <source>Color to put into a cell</source>
        <translation>Farbe für eine Zelle</translation>
    </message>
    <message>
        <source>Select a cell, then &lt;&lt; keeps
the color in your list.</source>
        <translation>Wählen Sie eine Zelle, dann legt
&lt;&lt; die Farbe in Ihre Liste.</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>Gewählte Farbe</translation>
    </message>
    <message>
        <source>Color before</source>
        <translation>Vorherige Farbe</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Color under the pointer</source>
        <translation>Farbe unter dem Zeiger</translation>
    </message>
    <message>
        <source>Recent colors</source>
        <translation>Letzte Farben</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>Recent color %1</source>
        <translation>Letzte Farbe %1</translation>
    </message>
    <message>
        <source>O&amp;K</source>
        <translation>O&amp;K</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>velara::fPicturePage</name>
    <message>
        <source>%1, left and right</source>
        <translation>%1, links und rechts</translation>
    </message>
    <message>
        <source>%1, up and down</source>
        <translation>%1, auf und ab</translation>
    </message>
</context>
<context>
    <name>velara::fPreferences</name>
    <message>
        <source>&amp;Open iP maximized </source>
        <translation>Programm &amp;maximiert öffnen </translation>
    </message>
    <message>
        <source>Open i&amp;mages maximized </source>
        <translation>&amp;Bilder maximiert öffnen </translation>
    </message>
    <message>
        <source>&amp;Preserve last folder</source>
        <translation>&amp;Letzten Ordner merken</translation>
    </message>
    <message>
        <source>&amp;Ask to save on Close/Exit</source>
        <translation>Beim Schließen/Beenden nach dem &amp;Speichern fragen</translation>
    </message>
    <message>
        <source>%1: Options</source>
        <translation>%1: Optionen</translation>
    </message>
    <message>
        <source>Images default &amp;folder</source>
        <translation>Standard&amp;ordner für Bilder</translation>
    </message>
    <message>
        <source>Images default folder</source>
        <translation>Standardordner für Bilder</translation>
    </message>
    <message>
        <source>&amp;Browse ...</source>
        <translation>&amp;Durchsuchen ...</translation>
    </message>
    <message>
        <source>Select Images default folder</source>
        <translation>Standardordner für Bilder wählen</translation>
    </message>
    <message>
        <source>&amp;Convert pictures to sRGB</source>
        <translation>Bilder in s&amp;RGB umwandeln</translation>
    </message>
    <message>
        <source>&amp;Show pictures by the screen&apos;s color profile</source>
        <translation>Bilder mit dem &amp;Farbprofil des Bildschirms anzeigen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>from the next start on</source>
        <translation>ab dem nächsten Start</translation>
    </message>
    <message>
        <source>Colors of the windows</source>
        <translation>Farben der Fenster</translation>
    </message>
    <message>
        <source>Colors of the &amp;windows:</source>
        <translation>Farben der F&amp;enster:</translation>
    </message>
</context>
<context>
    <name>velara::fPresetWell</name>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Window text</source>
        <translation>Fenstertext</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Eingabefeld</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Schaltfläche</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Text der Schaltfläche</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Selected text</source>
        <translation>Ausgewählter Text</translation>
    </message>
    <message>
        <source>Tool tip</source>
        <translation>Kurzinfo</translation>
    </message>
    <message>
        <source>Tool tip text</source>
        <translation>Text der Kurzinfo</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verknüpfen</translation>
    </message>
    <message>
        <source>Visited link</source>
        <translation>Besuchter Link</translation>
    </message>
    <message>
        <source>Light edge</source>
        <translation>Helle Kante</translation>
    </message>
    <message>
        <source>Pale edge</source>
        <translation>Blasse Kante</translation>
    </message>
    <message>
        <source>Middle edge</source>
        <translation>Mittlere Kante</translation>
    </message>
    <message>
        <source>Dark edge</source>
        <translation>Dunkle Kante</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Other rows</source>
        <translation>Andere Zeilen</translation>
    </message>
    <message>
        <source>Choose one of the set</source>
        <translation>Eine aus dem Satz wählen</translation>
    </message>
</context>
<context>
    <name>velara::fPrint</name>
    <message>
        <source>The page</source>
        <translation>Die Seite</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>&amp;Fit to page</source>
        <translation>An &amp;Seite anpassen</translation>
    </message>
    <message>
        <source>&amp;Center image</source>
        <translation>Bild &amp;zentrieren</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>Anpassung</translation>
    </message>
    <message>
        <source>Printing ...</source>
        <translation>Es wird gedruckt ...</translation>
    </message>
    <message>
        <source>Asking the printer ...</source>
        <translation>Der Drucker wird befragt ...</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>File: </source>
        <translation>Datei: </translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>In Datei drucken</translation>
    </message>
    <message>
        <source>Unable to print</source>
        <translation>Drucken ist nicht möglich</translation>
    </message>
    <message>
        <source>It is waiting</source>
        <translation>Es wartet</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>%1 Exemplare</translation>
    </message>
</context>
<context>
    <name>velara::fPrinterBox</name>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>PDF file ...</source>
        <translation>PDF-Datei ...</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Drucker wählen</translation>
    </message>
    <message>
        <source>Looking for printers ...</source>
        <translation>Drucker werden gesucht ...</translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation>Es wurde kein Drucker gefunden</translation>
    </message>
</context>
<context>
    <name>velara::fPrinterSetup</name>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>&amp;Shades of gray</source>
        <translation>&amp;Graustufen</translation>
    </message>
    <message>
        <source>Printer Setup</source>
        <translation>Drucker einrichten</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Asking the printer ...</source>
        <translation>Der Drucker wird befragt ...</translation>
    </message>
</context>
<context>
    <name>velara::fProperties</name>
    <message>
        <source>%1 pixels (%2 megapixels)</source>
        <translation>%1 Pixel (%2 Megapixel)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>velara::fRecovery</name>
    <message>
        <source>Recover Pictures</source>
        <translation>Bilder wiederherstellen</translation>
    </message>
    <message>
        <source>The program ended before the changes of these pictures were saved.</source>
        <translation>Das Programm endete, bevor die Änderungen dieser Bilder gespeichert waren.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>&amp;Recover All</source>
        <translation>&amp;Alle wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard All ...</source>
        <translation>Alle &amp;verwerfen ...</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>They stay on the start page, and in the File menu</source>
        <translation>Sie bleiben auf der Startseite und im Menü Datei</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Vorschaubild</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard ...</source>
        <translation>Verwerfen ...</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
</context>
<context>
    <name>velara::fResolution</name>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Anti-Alias</source>
        <translation>Kantenglättung</translation>
    </message>
    <message>
        <source>File: </source>
        <translation>Datei: </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>velara::fRgbBox</name>
    <message>
        <source>Drag up or down to change it; with Ctrl by tens</source>
        <translation>Auf oder ab ziehen ändert den Wert; mit Strg in Zehnern</translation>
    </message>
</context>
<context>
    <name>velara::fRotate</name>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>&amp;Antialiasing</source>
        <translation>&amp;Kantenglättung</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>Kantenglättung</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>45 degrees more</source>
        <translation>45 Grad mehr</translation>
    </message>
    <message>
        <source>45 degrees less</source>
        <translation>45 Grad weniger</translation>
    </message>
    <message>
        <source>Canvas will be resized</source>
        <translation>Die Leinwandgröße ändert sich</translation>
    </message>
</context>
<context>
    <name>velara::fScanSettings</name>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Whole &amp;bed</source>
        <translation>Ganze &amp;Fläche</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;Einzug</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Modus</translation>
    </message>
    <message>
        <source>&amp;Resolution (dpi)</source>
        <translation>&amp;Auflösung (dpi)</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>Lin&amp;ks</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>&amp;Oben</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
</context>
<context>
    <name>velara::fSearch</name>
    <message>
        <source>Find a command</source>
        <translation>Befehl suchen</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Find a Command</source>
        <translation>Befehl suchen</translation>
    </message>
    <message>
        <source>A few letters of what you want to do</source>
        <translation>Ein paar Buchstaben von dem, was Sie tun möchten</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Nothing has this name.</source>
        <translation>Nichts heißt so.</translation>
    </message>
    <message>
        <source> · used lately</source>
        <translation> · zuletzt benutzt</translation>
    </message>
</context>
<context>
    <name>velara::fSize</name>
    <message>
        <source>Image size</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation>&amp;Seitenverhältnis beibehalten</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>&amp;Anti-Alias</source>
        <translation>&amp;Kantenglättung</translation>
    </message>
    <message>
        <source>Anti-Alias</source>
        <translation>Kantenglättung</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Schnellwahl</translation>
    </message>
    <message>
        <source>Choose a factor</source>
        <translation>Faktor wählen</translation>
    </message>
    <message>
        <source>&amp;Percent</source>
        <translation>&amp;Prozent</translation>
    </message>
</context>
<context>
    <name>velara::fSizeFields</name>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
</context>
<context>
    <name>velara::fSource</name>
    <message>
        <source>Select Source</source>
        <translation>Quelle wählen</translation>
    </message>
    <message>
        <source>Scanners</source>
        <translation>Scanner</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Erneut suchen</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Auswählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Looking for scanners ...</source>
        <translation>Scanner werden gesucht ...</translation>
    </message>
    <message>
        <source>No scanner was found: </source>
        <translation>Es wurde kein Scanner gefunden: </translation>
    </message>
    <message>
        <source>No scanner was found.</source>
        <translation>Es wurde kein Scanner gefunden.</translation>
    </message>
    <message>
        <source>Scanners of this machine:</source>
        <translation>Scanner dieses Rechners:</translation>
    </message>
    <message>
        <source>Please Verify that the system is connected to Scanner!</source>
        <translation>Bitte prüfen Sie, ob ein Scanner angeschlossen ist!</translation>
    </message>
</context>
<context>
    <name>velara::fSplash</name>
    <message>
        <source>About Velara Studio</source>
        <translation>Über Velara Studio</translation>
    </message>
</context>
<context>
    <name>velara::fStartPage</name>
    <message>
        <source>Recent pictures</source>
        <translation>Zuletzt geöffnete Bilder</translation>
    </message>
    <message>
        <source>How to start</source>
        <translation>So geht es los</translation>
    </message>
    <message>
        <source>Open a picture to begin</source>
        <translation>Öffnen Sie ein Bild, um zu beginnen</translation>
    </message>
    <message>
        <source>Pictures may also be dropped here.</source>
        <translation>Bilder lassen sich auch hierher ziehen.</translation>
    </message>
    <message>
        <source>Not saved when the program ended</source>
        <translation>Beim Ende des Programms nicht gespeichert</translation>
    </message>
    <message>
        <source>&amp;Recover ...</source>
        <translation>&amp;Wiederherstellen ...</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation>&amp;Neu ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>From the &amp;clipboard</source>
        <translation>Aus der &amp;Zwischenablage</translation>
    </message>
</context>
<context>
    <name>velara::fStatus</name>
    <message>
        <source>Position of the pointer</source>
        <translation>Stelle des Zeigers</translation>
    </message>
    <message>
        <source>Extent of the drag</source>
        <translation>Ausdehnung des Zugs</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Größe des Bildes</translation>
    </message>
    <message>
        <source>Page of the file</source>
        <translation>Seite der Datei</translation>
    </message>
    <message>
        <source>Name of the picture</source>
        <translation>Name des Bildes</translation>
    </message>
    <message>
        <source>Keys of what is under way</source>
        <translation>Tasten für das, was gerade entsteht</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Progress of the filter</source>
        <translation>Fortschritt des Filters</translation>
    </message>
</context>
<context>
    <name>velara::fTextPage</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Left Justify|Centre Justify|Right Justify|Full Justify</source>
        <translation>Linksbündig|Zentriert|Rechtsbündig|Blocksatz</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Top Left|Top|Top Right|Left|No Shadow|Right|Bottom Left|Bottom|Bottom Right</source>
        <translation>Oben links|Oben|Oben rechts|Links|Kein Schatten|Rechts|Unten links|Unten|Unten rechts</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>The text is too long for this space: make the window larger.</source>
        <translation>Der Text ist zu lang für diesen Platz: Vergrößern Sie das Fenster.</translation>
    </message>
    <message>
        <source>The text as it is stamped</source>
        <translation>Der Text, wie er gestempelt wird</translation>
    </message>
    <message>
        <source>Type the text here</source>
        <translation>Hier den Text eingeben</translation>
    </message>
    <message>
        <source>&amp;Place with the mouse</source>
        <translation>Mit der &amp;Maus platzieren</translation>
    </message>
    <message>
        <source>Place with the mouse</source>
        <translation>Mit der Maus platzieren</translation>
    </message>
    <message>
        <source>Takes the text tool: press on the picture, drag, and let go where the text shall stand</source>
        <translation>Nimmt das Textwerkzeug: auf dem Bild drücken, ziehen und loslassen, wo der Text stehen soll</translation>
    </message>
    <message>
        <source>Unable to find suitable font size for text</source>
        <translation>Keine passende Schriftgröße für den Text gefunden</translation>
    </message>
</context>
<context>
    <name>velara::fTexturize</name>
    <message>
        <source>Texturize</source>
        <translation>Texturieren</translation>
    </message>
    <message>
        <source>The folder &quot;Textures&quot; can&apos;t be written to.</source>
        <translation>In den Ordner „Textures“ lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Textures</source>
        <translation>Texturen</translation>
    </message>
    <message>
        <source>Chosen texture</source>
        <translation>Gewählte Textur</translation>
    </message>
    <message>
        <source>Preview, pixel for pixel</source>
        <translation>Vorschau, Pixel für Pixel</translation>
    </message>
    <message>
        <source>The texture</source>
        <translation>Die Textur</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensität</translation>
    </message>
    <message>
        <source>Depth </source>
        <translation>Tiefe </translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Farbtiefe</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>Prägen</translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation>Gravieren</translation>
    </message>
    <message>
        <source>Self-Texturized</source>
        <translation>Mit sich selbst texturiert</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>(can&apos;t be read)</source>
        <translation>(nicht lesbar)</translation>
    </message>
    <message>
        <source>This file can&apos;t be read as a picture.</source>
        <translation>Diese Datei ist nicht als Bild lesbar.</translation>
    </message>
    <message>
        <source>A relief needs a picture of at least 2 x 2 pixels.</source>
        <translation>Ein Relief braucht ein Bild von mindestens 2 x 2 Pixeln.</translation>
    </message>
    <message>
        <source>A texture needs at least 2 x 2 pixels.</source>
        <translation>Eine Textur braucht mindestens 2 x 2 Pixel.</translation>
    </message>
</context>
<context>
    <name>velara::fToolPane</name>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>First color</source>
        <translation>Erste Farbe</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>Zweite Farbe</translation>
    </message>
    <message>
        <source>Swap the colors</source>
        <translation>Farben vertauschen</translation>
    </message>
</context>
<context>
    <name>velara::fToolTextures</name>
    <message>
        <source>Text and effects</source>
        <translation>Text und Effekte</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>&amp;Effects</source>
        <translation>&amp;Effekte</translation>
    </message>
    <message>
        <source>Textures: %1</source>
        <translation>Texturen: %1</translation>
    </message>
</context>
<context>
    <name>velara::fWebTable</name>
    <message>
        <source>All formats</source>
        <translation>Alle Formate</translation>
    </message>
    <message>
        <source>Formats by size</source>
        <translation>Formate nach Größe</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Loss</source>
        <translation>Verlust</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Choose the format</source>
        <translation>Format wählen</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Decibels: the more, the better.</source>
        <translation>Dezibel: je mehr, desto besser.</translation>
    </message>
    <message>
        <source>no loss</source>
        <translation>kein Verlust</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
</context>
</TS>
