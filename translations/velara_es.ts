<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Clipboard</name>
    <message>
        <source>the picture on the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture on the clipboard was given up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture on the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program that put the picture on the clipboard doesn&apos;t hand it over.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Colors</name>
    <message>
        <source>16 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>48 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red Pallete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green Pallete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue Pallete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grey Pallete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Pallete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileFacts</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Filters</name>
    <message>
        <source>Color [Colorize]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust [Brightness]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>levels added; 0 changes nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust [Contrast]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent added to the contrast; -100 is flat grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust [Saturation]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent added to the saturation; -100 is grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust [Gamma correction]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gamma is (Level+100)/100; -100 is black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Definition [Diffuse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pixels from left to right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pixels from top to bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust [Blur]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pixels; 0 changes nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Definition [Halftone]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pixels of a dot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pixels added to its reach</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent brighter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Definition [Pixelaze]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pixels a side; 1 changes nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edges [Emboss]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tenths of the difference; 0 is flat grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edges [Engrave]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edges [Contour]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>edges darker than this show; 0 is none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edges [Sketch]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B/W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>edges above it are drawn; flat ones have 255</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edges [Threshold]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>brightest level that becomes black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color [Isolate]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent of half a channel&apos;s range; 0 is the exact colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color [Reduction]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>levels are rounded to multiples of Level+1; 0 changes nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color [Replace]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color [Replace Hue/Sat.]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue Tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hundredths of a sixth of a turn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sat. Tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply Tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color [Replace Lum.]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lum. Tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent of brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust [Sharpen]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 weak to 100 strong</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust [Soften]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color [Shift]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>levels added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color [Hue rotation]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent of a turn of the hue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent kept; 0 is grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color [Grey rotation]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>phase of the sine in tenths of a radian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its frequency: Steps/2.5 radians from black to white</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color [Hue stretch]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent; 0 is grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stretch factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tenths of a radian of hue from black to white</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color [RGB levels]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color [RGB banks]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deformation [Lens]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magnify factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 nothing to 130 strong</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deformation [Waves]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>degrees a row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quarters of a pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start degree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>degrees at the top row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deformation [Bend]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent added to twice the radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deformation [Fold]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent at the edge; 0 is none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deformation [Rotate]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to the left; below 0 to the right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deformation [Stretch]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent; above 0 shrinks; below 0 enlarges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent as before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deformation [Tile]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>copies a side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deformation [Twirl]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tenths of a radian at half the width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>degrees for all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Special [Grid]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force margins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 invisible to 255 opaque</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Special [Light]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>levels added in the middle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent of it at the rim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Special [Noise]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Equalized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>levels up or down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Special [Scanlines]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>levels taken away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Behind Glass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Behind Curtain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Squary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slanting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stored texture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diffuse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dilate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge enhance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Equalize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Noise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Old photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Painting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photocopy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixelize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relief</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanlines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sketch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soften</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Twirl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert black</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Fonts</name>
    <message>
        <source>Failed to get font info</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>%1 is %2 picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Supported Picture Formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bitmap Files (*.BMP;*.DIB)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meta Files (*.WMF;*.EMF)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graphical Interface Format(*.GIF)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Independent JPEG Group (*.JPG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portable Network Graphics (*.PNG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zsoft Paintbrush Files (*.PCX)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wireless Bitmap (*.WBMP)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portable Bitmap (*.PBM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portable Graymap (*.PGM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portable Pixelmap (*.PPM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows Icon (*.ICO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photoshop (*.PSD)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Network Graphics (*.JNG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiple Network Graphics (*.MNG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tagged Image File Format (*.TIF)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commodore 64 Koala format (*.KOA)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kodak PhotoCD (*.PCD)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sun Rasterfile (*.RAS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Targa files (*.TGA)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dr.Halo bitmap (*.CUT)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interchanged File Format (*.IFF)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deluxe Paint package (*.LBM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebP (*.WEBP)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High Efficiency Image File (*.HEIC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AV1 Image File (*.AVIF)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG XL (*.JXL)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scalable Vector Graphics (*.SVG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera Files (*.DNG;*.CR2;*.NEF;*.ARW;*.RAF;*.ORF;*.RW2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Supported graphic formats </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows Bitmap Files (*.bmp)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graphical Interface Format (*.GIF)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zsoft Paintbrush (*.PCX)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ASCII bitmap format(*.ppm)(*.pgm)(*.pbm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows Bitmap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meta Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graphical Interface Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Independent JPEG group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portable Network Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ZSoft Paintbrush Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wireless Bitmap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portable Bitmap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portable Graymap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portable Pixelmap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows Icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photoshop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Network Graphics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiple Network Graphics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tagged Image File Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commodore 64 Koala format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kodak PhotoCD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sun Rasterfile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Targa files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dr.Halo bitmap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interchanged File Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deluxe Paint package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High Efficiency Image File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AV1 Image File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG XL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scalable Vector Graphics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a BMP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a WBMP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a bitmap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a Windows metafile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an enhanced metafile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a GIF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a JPEG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a PNG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a PCX</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a portable anymap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a cursor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a Photoshop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an MNG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a TIFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a Koala</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a Photo CD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a Sun raster</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a Targa</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a Dr. Halo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an IFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a WebP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a HEIF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an AVIF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a JPEG XL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an SVG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a camera&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Leftover</name>
    <message>
        <source>Recovered %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its pictures can&apos;t be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A newer version of the program left it: its name is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its record is damaged: its name is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its record is missing: its name is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last change could not be kept: this is the one before it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not all of its steps back could be kept.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next Pa&amp;ge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prev&amp;ious Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reco&amp;ver ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save A&amp;ll ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save for &amp;Web ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scann&amp;er</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acquire ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Source ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Digital Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer Setup ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Non&amp;e</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In&amp;vert Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create &amp;New Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Image to Clip&amp;board</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create &amp;from Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cr&amp;op</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Run Recipe ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Recipe ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run on a &amp;Folder ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;mage Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opt&amp;ions ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Size ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canvas Size ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quality Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 x larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 x larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4 x larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5 x larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 x smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 x smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4 x smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5 x smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip &amp;Horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip &amp;Vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Properties ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tweak RGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Old Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sketch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sepia Tone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue Stretch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grey Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue &amp;&amp; Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Luminous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB To BRG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB To GBR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB To RBG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB To BGR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB To GRB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB Banks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hard Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hard Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hard Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hard Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spotted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wet Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fi&amp;lters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relief</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dilate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Painting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge Enhance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Luminousity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diffuse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soften</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blur</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Noise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanlines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effect&amp;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Haftone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixelize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mosaic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gamma Correction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thermique</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X-Black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo Cop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shapes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Twirl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Glass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slanting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Squary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curtain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Merging ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen Capture ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Textures ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Resolution ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Depth ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save for Web ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Tools ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icon Extractor ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Associations ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set as Wallpaper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Views</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile Horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile Vertically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cascade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Textures Box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clipboard Box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side Tools  Bar : Hide n Seek</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Store Toolbar Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find a Command ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Velara Studio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Glass: Horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Luminousity: Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Luminousity: Heavy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blur: Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emboss: Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour: Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diffuse: Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Engrave: Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soften: Heavy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Noise: Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation: Heavy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save for web</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image merging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image textures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icon extractor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set as wallpaper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Velara Studio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll with the hand (H)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in (Ctrl++)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom out (Ctrl+-)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures that were not saved when the program ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The next page or frame of the file, in a window of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page or frame of the file before this one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was done to this picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes every changed picture to its own file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Does the steps of a recipe to this picture, as one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps what was done to this picture, to do it to others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Does a recipe to many pictures, beside the editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mixes each pixel from those one pixel away: too little to hide anything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mixes each pixel from those two pixels away: too little to hide anything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mixes each pixel from those up to two pixels away: too little to hide anything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Squares of one colour: hides a face or a number plate</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Properties</name>
    <message>
        <source>Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>nothing was cut or copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is pasted is larger than the picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Enlarge the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep its size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The screen gave no picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>
and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReadingBox</name>
    <message>
        <source>Reading %1 ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is damaged or not %1 picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is damaged, and its reader gave up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is damaged, and its reader wanted what no picture needs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is damaged: it has hardly any bytes for its %1 x %2 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is damaged: some of its pixels are missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is cut off: its end is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is wider or higher than 32767 pixels, or has more than 268 million pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it needs more memory than reading a picture may take</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is empty or can&apos;t be opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has more than two gigabytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its name has no extension to tell what it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no reader for .%1 files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its reader could not be locked in (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>velara-decode-all, which reads %1 picture, can&apos;t be started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this build lacks the library that reads %1 picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the library that reads HEIF and AVIF pictures (libheif) is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the library that reads JPEG XL pictures (libjxl) is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the fonts that metafiles are drawn with are missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has only %1 pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has only one page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading it was given up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading it took too long and was stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) gave a false answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) can&apos;t be started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) was not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a sanitizer stopped its reader</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no permission to read it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the system says &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the system tells nothing about it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has more than the %1 pixels that limits.conf allows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>limits.conf has turned .%1 files off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no room in the Temp folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the Temp folder can&apos;t be written to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There was an error while saving! Please Restart Velara&apos;s Studio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collection of ASCII based bitmap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A WebP picture has at most 16383 pixels a side.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This facility is currently turned Off!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I don&apos;t know how to put a DIB on the clipboard! Copy as bitmap instead!!!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the page can&apos;t be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the page can&apos;t be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file can&apos;t be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the print server does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no print server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no printer %1 any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the print server has not taken the page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 refused the page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer %1 is paused. The page waits in its queue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page is held in the queue of the printer %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture of the screen is all black.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a profile that can&apos;t be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bits a pixel in the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %2 dots per inch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is too large for a recipe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a recipe begins with &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the recipe is of version %1, and this program knows those up to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no step; of the options only %2 SHAPE is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a command word and takes no arguments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the closing bracket is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no pixel in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PBM, PGM and PPM: If the bitmap has a bit depth of 1, the file is saved as a PBM file. If the bitmap has a bit depth of 8, the file is saved as a PGM file. If the bitmap has a bit depth of 24, the file is saved as a PPM file. Other bit depths are not supported. The file you requested is saved as 24-bit True Color (.ppm) format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuration data file is corrupted<byte value="xd"/>
Values will be initilized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it needs %1 of memory, more than half of the %2 that are free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the picture would have %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %2 pixels; a side has at most %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 megapixels (%2 x %3 pixels); at most %4 are possible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Save for Web</name>
    <message>
        <source>Windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows 256</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF-2 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF-4 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF-8 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF-16 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF-32 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>32 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF-64 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>64 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF-128 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>128 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF-256 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>256 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BMP-2 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BMP-16 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BMP-256 Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BMP-16 bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16 bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BMP-24 bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>24 bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG-8 bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8 bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG-24 bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PCX-24 bit (Compressed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PCX-24 bit (Uncompressed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TGA-24 bit (Compressed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TGA-24 bit (Uncompressed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TIFF-24 bit (Uncompressed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebP (Lossless)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AVIF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG XL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MS Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VGA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iNet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MS 256</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed Grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Binary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Haftone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward Diag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backward Diag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Odd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Even</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Equal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Superb</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Search words</name>
    <message>
        <source>blank empty create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>load import file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>scan paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>screenshot whole screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>back revert mistake</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>again forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paste as new picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>resize scale percent width height pixels larger smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>border margin room enlarge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>turn portrait landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>turn angle degrees straighten horizon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>export rename convert format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>insert clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cut out trim margins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>settings preferences configure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>overlay blend double exposure two pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>resize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>export gif jpeg png small kilobytes compress quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>palette indexed 256 16 colours reduce dither</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write letters caption font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>desktop background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>thumbnails folder gallery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>crash unsaved restore lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>screenshot window screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ico extract</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tiff gif animation icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default program double click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quit close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>second window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exif camera date place gps profile metadata information facts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>version licence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>deselect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>undo steps states back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>every open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macro action script batch replay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macro action script batch record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>batch many pictures macro convert all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keys shortcuts manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>negative</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>black and white grey monochrome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>crisp focus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>soft unsharp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vintage brown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vintage brown old</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mirror left right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mirror top bottom upside down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zoom 100 % actual pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>turn right clockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>turn upside down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>turn left counterclockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tint hue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>brightness lighter darker exposure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lighter darker exposure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fade dull</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hide a face censor anonymous number plate mosaic blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>recolour change colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>grain</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Textures</name>
    <message>
        <source>Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ripple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leather</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frosted glass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Esc or right button: drop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space: fix and go on · Esc: drop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click: lay down · Space: fix and go on · Esc: drop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space: corner · Enter: close · Esc: drop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click: corner · Enter or double click: close · Esc: drop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What moves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Selection Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Content Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use this intensity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instead of the selection&apos;s pressure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opaque Intensity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode of selecting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shape of the selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polygon/Free hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Move selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move region / move pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode of the brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Darken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soften</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soften (Overlay)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What fills</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Square</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pol. sides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mask color :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use mask color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mask color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stamp mask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current color stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear stamp track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form of the gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Circular</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::Bars</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not available yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (not available yet)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::Capture</name>
    <message>
        <source>Capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the desktop&apos;s picture ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the screen gave no picture</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::Documents</name>
    <message>
        <source>Pictures</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::FEffect</name>
    <message>
        <source>Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply the effect</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::FGradient</name>
    <message>
        <source>The gradient</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::FStamp</name>
    <message>
        <source>Stamp sub-Folder Not Found!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stamp files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chosen stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;Stamps&gt; subfolder not found.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::FWeb</name>
    <message>
        <source>Original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original, above the optimized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimized, below the original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customized Save Options </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files of this format have no place for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter value between 1 to 99 !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please Choose a higher image format!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The current format cannot be applied to the image!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be written%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 % of the original file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no loss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No quality makes it as small as %1 KB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No number of colors makes it as small as %1 KB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Optimized As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All formats ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size and loss of this picture in every format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dither</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dither</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip &amp;horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip &amp;vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;nterlaced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom  1 To 99</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit to so many KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit &amp;to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep camera data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without the pla&amp;ce</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exact size and loss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is being written</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n colors</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::FolderRun</name>
    <message>
        <source>
It ended before its time.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::FrameRequests</name>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> can&apos;t be read: it is no file of this computer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::MaskChoice</name>
    <message>
        <source>Mask color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What has this color becomes transparent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::PreviewPane</name>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no permission to look into it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::Recipes</name>
    <message>
        <source>Recipe (*.recipe)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was done to this picture yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All of this was made by hand: there is nothing that could be done to another picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 steps were made by hand, and can&apos;t be done to another picture:
%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Leave them out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command is on the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save recipe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run recipe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>: there is no step in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is as it was. The recipe %1 ended:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Run on %n pictures.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>These pictures are as they were:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No other picture is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was done to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another file ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a recipe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This recipe can&apos;t be run:
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::Recovery</name>
    <message>
        <source>Changed on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>texts that are not merged yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard the unsaved changes of %1?
They can&apos;t be recovered after that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n steps</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::SaneScanner</name>
    <message>
        <source>The program velara-scan is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scanner&apos;s driver has failed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::SaveDialog</name>
    <message>
        <source>&quot;%1&quot; has the ending of another kind of file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::Startup</name>
    <message>
        <source>Velara Studio is already running!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be written to.
Steps back stay in memory, as many as fit, and settings will not be kept.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fAboutFacts</name>
    <message>
        <source>picture files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF and palettes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>metafiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>scanners</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vector arithmetic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the cage of the decoders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>icons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Velara Studio %1&lt;/b&gt;&lt;p&gt;Free software under the GNU General Public License, version 2 or later, without any warranty.&lt;/p&gt;&lt;p&gt;It stands on&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version, license and libraries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fAcquire</name>
    <message>
        <source>Acquire</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select S&amp;ource ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for scanners ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no scanner was found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking the scanner ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning page %1 ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scanner says: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fAssociation</name>
    <message>
        <source>File Association</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture formats that Velara Studio knows. Which program opens
a file is chosen in the settings of your desktop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formats</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fBed</name>
    <message>
        <source>Preview of the scanner&apos;s bed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fBrowse</name>
    <message>
        <source>Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures of the folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse For Graphic Filles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fCanvas</name>
    <message>
        <source>Canvas size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proportions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Defined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is Canvas Size?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The canvas is the area that the picture stands on. A larger canvas adds black room around the picture, a smaller one cuts its edges; the pixels themselves keep their size. Drag the picture, or press an arrow, to say where it stands.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fCanvasView</name>
    <message>
        <source>Canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture on the canvas</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fCapture</name>
    <message>
        <source>Capture Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How to capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ustom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The whole screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A rectangle of the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desktop means the main screen where you go through before opening any windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foreground means the Current window you are working with i.e, The Velara&apos;s Studio Environment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background means any windows behind the current active window including your Desktop. Desktop is the background if there is no other visible windows behind Velara&apos;s Studio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>At once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With the &amp;pointer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fCaptureRectangle</name>
    <message>
        <source>Capture Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag a rectangle; Esc leaves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag a rectangle; with Shift it stays, with grips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter: all, or the rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esc: leave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W: the window below the pointer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fCellGrid</name>
    <message>
        <source>Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cell %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>empty</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fColorButton</name>
    <message>
        <source>Red %1, green %2, blue %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fColorDepth</name>
    <message>
        <source>2 Colors (1 Bit)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16 Colors (4 Bit)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>256 Colors (8 Bit)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(15 Bit)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(16 Bit)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>32,000 Colors (24 Bit)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>64,000 Colors (24 Bit)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Color Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select an option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1/%1 of the size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimized to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send the Optimized Image to </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimized Saver </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fColourCell</name>
    <message>
        <source>Red %1, green %2, blue %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fDisplay</name>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2: red %3, green %4, blue %5</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fEffectsPage</name>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply the effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply the file as a texture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: a double click applies it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effects, up and down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;mount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fol&amp;der...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the folder of the texture files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No texture files in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture files of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no picture open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be used as a texture: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fFilter</name>
    <message>
        <source>Working. Esc ends it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Banks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 comes from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 comes from %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Glass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 glass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strength</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curtain Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 curtain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Real Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs the filter on the picture and closes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before: click to place the center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before: click to pick a color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After, pixel for pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag it, or click in a picture beside it, to see another part</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fFolderRun</name>
    <message>
        <source>Run on a Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a folder of pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the new files go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go &amp;on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pau&amp;se</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every original is replaced by its result. They can&apos;t be brought back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace the originals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of about %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 a minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be started: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is still at work.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop it and close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave it, and skip the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a number to the new name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace it if it is older than the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;ecipe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures and folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with the folders &amp;below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With the folders below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Picture ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Folder ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pict&amp;ures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;older ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the target folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>o&amp;ver the originals, which are lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over the originals, which are lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names of the new files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{name}  the picture&apos;s own name
{ext}  the ending of its format
{n:04}  its number, with four digits
{dir}  its folder below the one that was chosen
Such as {name}-web.{ext}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where a file has the name already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form&amp;at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xisting file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures that failed; Enter or a double click opens one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A double click opens the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel or close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures that fa&amp;iled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fGeometry</name>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum size: 256 megapixels</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fHelp</name>
    <message>
        <source>What to do, and the keys for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the picture in its window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle button, or the hand (H)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift + wheel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom about the pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl + wheel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop what is under way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esc, or the right button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw without a mouse: move a crosshair by a pixel, or ten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrow keys, with Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press at the crosshair, and release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fix a text, a paste or moved pixels, and go on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner of a polygon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click, or Space while dragging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close a polygon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter, or a double click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To the tools and their settings, and back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mouse and keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menus</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fHexBox</name>
    <message>
        <source>Color code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>#rrggbb, #rgb or a name such as teal; Enter takes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color. Enter it as #rrggbb, as #rgb or by its name.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fHistory</name>
    <message>
        <source>Steps, oldest first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>painted by hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
in a selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
This step is not kept any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From this step on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy as command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save recipe ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Run from here on the other open pictures</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fIcon</name>
    <message>
        <source>Extract Icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fIconBar</name>
    <message>
        <source>What is in the frame, magnified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icon Maker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the frame over the picture.
Arrow keys move it by a pixel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icons taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icons taken:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the icon: + and -</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the icon: Enter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back to the icon extractor: Esc</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fIconBrowse</name>
    <message>
        <source>Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icon Extractor: Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chosen folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fIconMaker</name>
    <message>
        <source>Icon Maker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the frame of the icon; Enter takes, Esc closes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fIconPicture</name>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16 to 256 in one &amp;file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Required Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use &amp;Mask Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icon Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A click takes the mask color from here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no picture open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width and height are whole numbers from 1 to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 times as large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Icon as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icon File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fIconSeries</name>
    <message>
        <source>Custom Icon Extractor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Mas&amp;k Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Captures the screen and cuts icons out of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icons cut out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Extract Icons of the Selected Images to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder of the icons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>....</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Images to extract!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder does not Exists! Please Enter a valid folder path</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n icon Files Saved!</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Not written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source> and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::fImage</name>
    <message>
        <source>Picture window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal scroll bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical scroll bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This image has changed.
Do you want to save it ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fLayerCanvas</name>
    <message>
        <source>Picture with its texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fLayerList</name>
    <message>
        <source>Texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts, up and down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fLayers</name>
    <message>
        <source>Regular</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Underline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strike out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save for Web</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture with its texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color of the text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Optimized Image To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom to fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type. A drag marks letters, at the frame it moves the text. Esc ends typing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the text or its grips. A click or Enter puts the caret into it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on the picture where a text shall stand, and type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
The texts are not in the image yet.
Do you want to merge them ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring this picture to the front first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fMain</name>
    <message>
        <source>First color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no picture to work on: open one first, or make a new one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
There is no picture in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
&quot;.%1&quot; is no format that is written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected error loading image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file is not there any more:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These files are not there any more:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> can&apos;t be read as a picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> was not read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture has changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These are written to their own files:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These need a name, for which you are asked:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep camera data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without the &amp;place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving %1 ... Esc ends it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected error saving image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of a kind that is not read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is %1 picture; saved under this name it would become %2 picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no page behind this one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no page before this one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Do you want to save it under another name ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the texts of another picture wait for OK or Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A step could not be kept: this is the last one that stands.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A step that could not be kept was passed over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After a crash this picture could not be recovered: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This step can&apos;t be undone: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error getting subkey value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Setting subkey value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>It has %n pages; this one alone would be left of it.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
It has %n pages; this one alone would be left of it.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::fNew</name>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard sizes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;Custom&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fOrientation</name>
    <message>
        <source>Unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>90º left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>90º right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canvas orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip &amp;vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip &amp;horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip image</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fOverlay</name>
    <message>
        <source>Image Merging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select image to overlay:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image to overlay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tiled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mask color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mask color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create &amp;new image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not merged: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fOwnSize</name>
    <message>
        <source>&amp;Own size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed size in percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fPalette</name>
    <message>
        <source>Select Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation and lightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to pick and to store in the cell; double click for the large picker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current pick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap the colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link with current color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cell %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 degrees</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fPaste</name>
    <message>
        <source>Picture of the clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clip History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clips, oldest first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter pastes the clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll the clips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opaque &amp;Intensity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opaque Intensity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clip History: 
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum cut size: 2 x 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum copy size: 2 x 2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fPicker</name>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter an Integer Value Between 0 and %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Picker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color strip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 on the strip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>He&amp;x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Safe Palette (216)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the color into the selected cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color to put into a cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a cell, then &lt;&lt; keeps
the color in your list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color under the pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent color %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;K</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fPicturePage</name>
    <message>
        <source>%1, left and right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, up and down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fPreferences</name>
    <message>
        <source>&amp;Open iP maximized </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open i&amp;mages maximized </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preserve last folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ask to save on Close/Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images default &amp;folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images default folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Images default folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Convert pictures to sRGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show pictures by the screen&apos;s color profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fPresetWell</name>
    <message>
        <source>Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Button text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool tip text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visited link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pale edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose one of the set</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fPrint</name>
    <message>
        <source>The page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draft</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fit to page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Center image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking the printer ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fPrinterBox</name>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF file ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for printers ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fPrinterSetup</name>
    <message>
        <source>Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Shades of gray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking the printer ...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fProperties</name>
    <message>
        <source>%1 pixels (%2 megapixels)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fRecovery</name>
    <message>
        <source>Recover Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program ended before the changes of these pictures were saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recover All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Discard All ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They stay on the start page, and in the File menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fResolution</name>
    <message>
        <source>Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anti-Alias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fRgbBox</name>
    <message>
        <source>Drag up or down to change it; with Ctrl by tens</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fRotate</name>
    <message>
        <source>Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Antialiasing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>45 degrees more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>45 degrees less</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canvas will be resized</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fScanSettings</name>
    <message>
        <source>Pre&amp;view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole &amp;bed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Resolution (dpi)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> mm</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fSearch</name>
    <message>
        <source>Find a command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A few letters of what you want to do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing has this name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> · used lately</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fSize</name>
    <message>
        <source>Image size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Anti-Alias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anti-Alias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Percent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fSizeFields</name>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fSource</name>
    <message>
        <source>Select Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanners</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for scanners ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scanner was found: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scanner was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanners of this machine:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please Verify that the system is connected to Scanner!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fSplash</name>
    <message>
        <source>About Velara Studio</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fStartPage</name>
    <message>
        <source>Recent pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How to start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a picture to begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures may also be dropped here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved when the program ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recover ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From the &amp;clipboard</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fStatus</name>
    <message>
        <source>Position of the pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extent of the drag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys of what is under way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the filter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fTextPage</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left Justify|Centre Justify|Right Justify|Full Justify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top Left|Top|Top Right|Left|No Shadow|Right|Bottom Left|Bottom|Bottom Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Underline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text is too long for this space: make the window larger.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text as it is stamped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the text here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Place with the mouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place with the mouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the text tool: press on the picture, drag, and let go where the text shall stand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to find suitable font size for text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fTexturize</name>
    <message>
        <source>Texturize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder &quot;Textures&quot; can&apos;t be written to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Textures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen texture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview, pixel for pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The texture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Self-Texturized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(can&apos;t be read)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file can&apos;t be read as a picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A relief needs a picture of at least 2 x 2 pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A texture needs at least 2 x 2 pixels.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fToolPane</name>
    <message>
        <source>Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap the colors</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fToolTextures</name>
    <message>
        <source>Text and effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Textures: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velara::fWebTable</name>
    <message>
        <source>All formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formats by size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decibels: the more, the better.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no loss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
