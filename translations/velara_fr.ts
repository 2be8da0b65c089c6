<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Clipboard</name>
    <message>
        <source>the picture on the clipboard</source>
        <translation>l&apos;image du presse-papiers</translation>
    </message>
    <message>
        <source>The picture on the clipboard was given up.</source>
        <translation>L&apos;image du presse-papiers a été abandonnée.</translation>
    </message>
    <message>
        <source>The picture on the clipboard</source>
        <translation>L&apos;image du presse-papiers</translation>
    </message>
    <message>
        <source>The program that put the picture on the clipboard doesn&apos;t hand it over.</source>
        <translation>Le programme qui a mis l&apos;image dans le presse-papiers ne la transmet pas.</translation>
    </message>
</context>
<context>
    <name>Colors</name>
    <message>
        <source>16 Colors</source>
        <translation>16 couleurs</translation>
    </message>
    <message>
        <source>48 Colors</source>
        <translation>48 couleurs</translation>
    </message>
    <message>
        <source>Red Pallete</source>
        <translation>Palette rouge</translation>
    </message>
    <message>
        <source>Green Pallete</source>
        <translation>Palette verte</translation>
    </message>
    <message>
        <source>Blue Pallete</source>
        <translation>Palette bleue</translation>
    </message>
    <message>
        <source>Grey Pallete</source>
        <translation>Palette grise</translation>
    </message>
    <message>
        <source>System Pallete</source>
        <translation>Palette du système</translation>
    </message>
</context>
<context>
    <name>FileFacts</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>Filters</name>
    <message>
        <source>Color [Colorize]</source>
        <translation>Couleur [Coloriser]</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Adjust [Brightness]</source>
        <translation>Régler [Luminosité]</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>levels added; 0 changes nothing</source>
        <translation>niveaux ajoutés ; 0 ne change rien</translation>
    </message>
    <message>
        <source>Adjust [Contrast]</source>
        <translation>Régler [Contraste]</translation>
    </message>
    <message>
        <source>percent added to the contrast; -100 is flat grey</source>
        <translation>pour cent ajoutés au contraste ; -100 donne un gris uni</translation>
    </message>
    <message>
        <source>Adjust [Saturation]</source>
        <translation>Régler [Saturation]</translation>
    </message>
    <message>
        <source>percent added to the saturation; -100 is grey</source>
        <translation>pour cent ajoutés à la saturation ; -100 donne du gris</translation>
    </message>
    <message>
        <source>Adjust [Gamma correction]</source>
        <translation>Régler [Correction gamma]</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>gamma is (Level+100)/100; -100 is black</source>
        <translation>gamma vaut (Niveau+100)/100 ; -100 donne du noir</translation>
    </message>
    <message>
        <source>Definition [Diffuse]</source>
        <translation>Définition [Diffuser]</translation>
    </message>
    <message>
        <source>Horizontal range</source>
        <translation>Portée horizontale</translation>
    </message>
    <message>
        <source>pixels from left to right</source>
        <translation>pixels de gauche à droite</translation>
    </message>
    <message>
        <source>Vertical range</source>
        <translation>Portée verticale</translation>
    </message>
    <message>
        <source>pixels from top to bottom</source>
        <translation>pixels de haut en bas</translation>
    </message>
    <message>
        <source>Adjust [Blur]</source>
        <translation>Régler [Flou]</translation>
    </message>
    <message>
        <source>pixels; 0 changes nothing</source>
        <translation>pixels ; 0 ne change rien</translation>
    </message>
    <message>
        <source>Definition [Halftone]</source>
        <translation>Définition [Demi-teinte]</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>pixels of a dot</source>
        <translation>pixels d&apos;un point</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Définition</translation>
    </message>
    <message>
        <source>pixels added to its reach</source>
        <translation>pixels ajoutés à sa portée</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>percent brighter</source>
        <translation>pour cent plus clair</translation>
    </message>
    <message>
        <source>Definition [Pixelaze]</source>
        <translation>Définition [Pixeliser]</translation>
    </message>
    <message>
        <source>Pixel size</source>
        <translation>Taille des pixels</translation>
    </message>
    <message>
        <source>pixels a side; 1 changes nothing</source>
        <translation>pixels de côté ; 1 ne change rien</translation>
    </message>
    <message>
        <source>Edges [Emboss]</source>
        <translation>Bords [Estampage]</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>tenths of the difference; 0 is flat grey</source>
        <translation>dixièmes de la différence ; 0 donne un gris uni</translation>
    </message>
    <message>
        <source>Edges [Engrave]</source>
        <translation>Bords [Gravure]</translation>
    </message>
    <message>
        <source>Edges [Contour]</source>
        <translation>Bords [Contour]</translation>
    </message>
    <message>
        <source>edges darker than this show; 0 is none</source>
        <translation>les bords plus sombres que cela se voient ; 0 : aucun</translation>
    </message>
    <message>
        <source>Edges [Sketch]</source>
        <translation>Bords [Croquis]</translation>
    </message>
    <message>
        <source>B/W</source>
        <translation>N/B</translation>
    </message>
    <message>
        <source>edges above it are drawn; flat ones have 255</source>
        <translation>les bords au-dessus sont tracés ; les surfaces unies valent 255</translation>
    </message>
    <message>
        <source>Edges [Threshold]</source>
        <translation>Bords [Seuil]</translation>
    </message>
    <message>
        <source>Cut value</source>
        <translation>Valeur de coupure</translation>
    </message>
    <message>
        <source>brightest level that becomes black</source>
        <translation>niveau le plus clair qui devient noir</translation>
    </message>
    <message>
        <source>Color [Isolate]</source>
        <translation>Couleur [Isoler]</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolérance</translation>
    </message>
    <message>
        <source>percent of half a channel&apos;s range; 0 is the exact colour</source>
        <translation>pour cent de la demi-étendue d&apos;un canal ; 0 : la couleur exacte</translation>
    </message>
    <message>
        <source>Color [Reduction]</source>
        <translation>Couleur [Réduction]</translation>
    </message>
    <message>
        <source>levels are rounded to multiples of Level+1; 0 changes nothing</source>
        <translation>niveaux arrondis aux multiples de Niveau+1 ; 0 ne change rien</translation>
    </message>
    <message>
        <source>Color [Replace]</source>
        <translation>Couleur [Remplacer]</translation>
    </message>
    <message>
        <source>Color [Replace Hue/Sat.]</source>
        <translation>Couleur [Remplacer teinte/sat.]</translation>
    </message>
    <message>
        <source>Hue Tolerance</source>
        <translation>Tolérance de teinte</translation>
    </message>
    <message>
        <source>hundredths of a sixth of a turn</source>
        <translation>centièmes d&apos;un sixième de tour</translation>
    </message>
    <message>
        <source>Sat. Tolerance</source>
        <translation>Tolérance de sat.</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>pour cent</translation>
    </message>
    <message>
        <source>Apply Tolerance</source>
        <translation>Appliquer la tolérance</translation>
    </message>
    <message>
        <source>Color [Replace Lum.]</source>
        <translation>Couleur [Remplacer lum.]</translation>
    </message>
    <message>
        <source>Lum. Tolerance</source>
        <translation>Tolérance de lum.</translation>
    </message>
    <message>
        <source>percent of brightness</source>
        <translation>pour cent de luminosité</translation>
    </message>
    <message>
        <source>Adjust [Sharpen]</source>
        <translation>Régler [Accentuer]</translation>
    </message>
    <message>
        <source>0 weak to 100 strong</source>
        <translation>0 faible à 100 fort</translation>
    </message>
    <message>
        <source>Adjust [Soften]</source>
        <translation>Régler [Adoucir]</translation>
    </message>
    <message>
        <source>Color [Shift]</source>
        <translation>Couleur [Décaler]</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Décaler</translation>
    </message>
    <message>
        <source>levels added</source>
        <translation>niveaux ajoutés</translation>
    </message>
    <message>
        <source>Color [Hue rotation]</source>
        <translation>Couleur [Rotation de teinte]</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>percent of a turn of the hue</source>
        <translation>pour cent d&apos;un tour de teinte</translation>
    </message>
    <message>
        <source>percent kept; 0 is grey</source>
        <translation>pour cent gardés ; 0 donne du gris</translation>
    </message>
    <message>
        <source>Color [Grey rotation]</source>
        <translation>Couleur [Rotation de gris]</translation>
    </message>
    <message>
        <source>phase of the sine in tenths of a radian</source>
        <translation>phase du sinus en dixièmes de radian</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Étapes</translation>
    </message>
    <message>
        <source>its frequency: Steps/2.5 radians from black to white</source>
        <translation>sa fréquence : Étapes/2,5 radians du noir au blanc</translation>
    </message>
    <message>
        <source>Color [Hue stretch]</source>
        <translation>Couleur [Étirement de teinte]</translation>
    </message>
    <message>
        <source>percent; 0 is grey</source>
        <translation>pour cent ; 0 donne du gris</translation>
    </message>
    <message>
        <source>Stretch factor</source>
        <translation>Facteur d&apos;étirement</translation>
    </message>
    <message>
        <source>tenths of a radian of hue from black to white</source>
        <translation>dixièmes de radian de teinte du noir au blanc</translation>
    </message>
    <message>
        <source>Color [RGB levels]</source>
        <translation>Couleur [Niveaux RVB]</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Color [RGB banks]</source>
        <translation>Couleur [Canaux RVB]</translation>
    </message>
    <message>
        <source>Deformation [Lens]</source>
        <translation>Déformation [Lentille]</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diamètre</translation>
    </message>
    <message>
        <source>Magnify factor</source>
        <translation>Facteur d&apos;agrandissement</translation>
    </message>
    <message>
        <source>0 nothing to 130 strong</source>
        <translation>0 rien à 130 fort</translation>
    </message>
    <message>
        <source>Deformation [Waves]</source>
        <translation>Déformation [Vagues]</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>degrees a row</source>
        <translation>degrés par ligne</translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation>Amplitude</translation>
    </message>
    <message>
        <source>quarters of a pixel</source>
        <translation>quarts de pixel</translation>
    </message>
    <message>
        <source>Start degree</source>
        <translation>Degré de départ</translation>
    </message>
    <message>
        <source>degrees at the top row</source>
        <translation>degrés à la première ligne</translation>
    </message>
    <message>
        <source>Deformation [Bend]</source>
        <translation>Déformation [Courber]</translation>
    </message>
    <message>
        <source>Clean back</source>
        <translation>Nettoyer le fond</translation>
    </message>
    <message>
        <source>Radius factor</source>
        <translation>Facteur de rayon</translation>
    </message>
    <message>
        <source>percent added to twice the radius</source>
        <translation>pour cent ajoutés au double du rayon</translation>
    </message>
    <message>
        <source>Deformation [Fold]</source>
        <translation>Déformation [Plier]</translation>
    </message>
    <message>
        <source>Horizontal factor</source>
        <translation>Facteur horizontal</translation>
    </message>
    <message>
        <source>percent at the edge; 0 is none</source>
        <translation>pour cent au bord ; 0 : aucun</translation>
    </message>
    <message>
        <source>Vertical factor</source>
        <translation>Facteur vertical</translation>
    </message>
    <message>
        <source>Deformation [Rotate]</source>
        <translation>Déformation [Rotation]</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Degrés</translation>
    </message>
    <message>
        <source>to the left; below 0 to the right</source>
        <translation>vers la gauche ; sous 0, vers la droite</translation>
    </message>
    <message>
        <source>Deformation [Stretch]</source>
        <translation>Déformation [Étirer]</translation>
    </message>
    <message>
        <source>percent; above 0 shrinks; below 0 enlarges</source>
        <translation>pour cent ; au-dessus de 0 réduit, au-dessous agrandit</translation>
    </message>
    <message>
        <source>percent as before</source>
        <translation>pour cent comme plus haut</translation>
    </message>
    <message>
        <source>Deformation [Tile]</source>
        <translation>Déformation [Mosaïque]</translation>
    </message>
    <message>
        <source>Factor</source>
        <translation>Facteur</translation>
    </message>
    <message>
        <source>copies a side</source>
        <translation>copies par côté</translation>
    </message>
    <message>
        <source>Deformation [Twirl]</source>
        <translation>Déformation [Tourbillon]</translation>
    </message>
    <message>
        <source>tenths of a radian at half the width</source>
        <translation>dixièmes de radian à mi-largeur</translation>
    </message>
    <message>
        <source>Offset degrees</source>
        <translation>Décalage en degrés</translation>
    </message>
    <message>
        <source>degrees for all</source>
        <translation>degrés pour tout</translation>
    </message>
    <message>
        <source>Special [Grid]</source>
        <translation>Spécial [Grille]</translation>
    </message>
    <message>
        <source>Force margins</source>
        <translation>Forcer les marges</translation>
    </message>
    <message>
        <source>Horizontal step</source>
        <translation>Pas horizontal</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>Vertical step</source>
        <translation>Pas vertical</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>0 invisible to 255 opaque</source>
        <translation>0 invisible à 255 opaque</translation>
    </message>
    <message>
        <source>Special [Light]</source>
        <translation>Spécial [Lumière]</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Étendue</translation>
    </message>
    <message>
        <source>levels added in the middle</source>
        <translation>niveaux ajoutés au milieu</translation>
    </message>
    <message>
        <source>percent of it at the rim</source>
        <translation>pour cent de cela au bord</translation>
    </message>
    <message>
        <source>Special [Noise]</source>
        <translation>Spécial [Bruit]</translation>
    </message>
    <message>
        <source>Equalized</source>
        <translation>Égalisé</translation>
    </message>
    <message>
        <source>levels up or down</source>
        <translation>niveaux en plus ou en moins</translation>
    </message>
    <message>
        <source>Special [Scanlines]</source>
        <translation>Spécial [Lignes de balayage]</translation>
    </message>
    <message>
        <source>levels taken away</source>
        <translation>niveaux retirés</translation>
    </message>
    <message>
        <source>Behind Glass</source>
        <translation>Derrière un verre</translation>
    </message>
    <message>
        <source>Behind Curtain</source>
        <translation>Derrière un rideau</translation>
    </message>
    <message>
        <source>Squary</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Slanting</source>
        <translation>Oblique</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Léger</translation>
    </message>
    <message>
        <source>Tight</source>
        <translation>Serré</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>Classy</source>
        <translation>Élégant</translation>
    </message>
    <message>
        <source>Whity</source>
        <translation>Blanchi</translation>
    </message>
    <message>
        <source>Stored texture</source>
        <translation>Texture enregistrée</translation>
    </message>
    <message>
        <source>Contour</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Diffuse</source>
        <translation>Diffuser</translation>
    </message>
    <message>
        <source>Dilate</source>
        <translation>Dilater</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Dissoudre</translation>
    </message>
    <message>
        <source>Edge enhance</source>
        <translation>Renforcer les bords</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>Estampage</translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation>Gravure</translation>
    </message>
    <message>
        <source>Equalize</source>
        <translation>Égaliser</translation>
    </message>
    <message>
        <source>Erode</source>
        <translation>Éroder</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Retourner</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Miroir</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plier</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Demi-teinte</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Bruit</translation>
    </message>
    <message>
        <source>Old photo</source>
        <translation>Vieille photo</translation>
    </message>
    <message>
        <source>Painting</source>
        <translation>Peinture</translation>
    </message>
    <message>
        <source>Photocopy</source>
        <translation>Photocopie</translation>
    </message>
    <message>
        <source>Pixelize</source>
        <translation>Pixeliser</translation>
    </message>
    <message>
        <source>Relief</source>
        <translation>Relief</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Scanlines</source>
        <translation>Lignes de balayage</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Accentuer</translation>
    </message>
    <message>
        <source>Sketch</source>
        <translation>Croquis</translation>
    </message>
    <message>
        <source>Soften</source>
        <translation>Adoucir</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>Thermique</translation>
    </message>
    <message>
        <source>Twirl</source>
        <translation>Tourbillon</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>Vagues</translation>
    </message>
    <message>
        <source>Invert black</source>
        <translation>Inverser le noir</translation>
    </message>
</context>
<context>
    <name>Fonts</name>
    <message>
        <source>Failed to get font info</source>
        <translation>Impossible d&apos;obtenir les informations de police</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>%1 is %2 picture</source>
        <translation>%1 est une image %2</translation>
    </message>
    <message>
        <source>All Supported Picture Formats</source>
        <translation>Tous les formats d&apos;image pris en charge</translation>
    </message>
    <message>
        <source>Bitmap Files (*.BMP;*.DIB)</source>
        <translation>Fichiers bitmap (*.BMP;*.DIB)</translation>
    </message>
    <message>
        <source>Meta Files (*.WMF;*.EMF)</source>
        <translation>Métafichiers (*.WMF;*.EMF)</translation>
    </message>
    <message>
        <source>Graphical Interface Format(*.GIF)</source>
        <translation>Graphical Interface Format (*.GIF)</translation>
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
        <translation>Fichiers Zsoft Paintbrush (*.PCX)</translation>
    </message>
    <message>
        <source>Wireless Bitmap (*.WBMP)</source>
        <translation>Bitmap sans fil (*.WBMP)</translation>
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
        <translation>Icône Windows (*.ICO)</translation>
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
        <translation>Format Koala du Commodore 64 (*.KOA)</translation>
    </message>
    <message>
        <source>Kodak PhotoCD (*.PCD)</source>
        <translation>Kodak PhotoCD (*.PCD)</translation>
    </message>
    <message>
        <source>Sun Rasterfile (*.RAS)</source>
        <translation>Fichier Sun Raster (*.RAS)</translation>
    </message>
    <message>
        <source>Targa files (*.TGA)</source>
        <translation>Fichiers Targa (*.TGA)</translation>
    </message>
    <message>
        <source>Dr.Halo bitmap (*.CUT)</source>
        <translation>Bitmap Dr.Halo (*.CUT)</translation>
    </message>
    <message>
        <source>Interchanged File Format (*.IFF)</source>
        <translation>Format d&apos;échange de fichiers (*.IFF)</translation>
    </message>
    <message>
        <source>Deluxe Paint package (*.LBM)</source>
        <translation>Deluxe Paint (*.LBM)</translation>
    </message>
    <message>
        <source>WebP (*.WEBP)</source>
        <translation>WebP (*.WEBP)</translation>
    </message>
    <message>
        <source>High Efficiency Image File (*.HEIC)</source>
        <translation>Image à haute efficacité (*.HEIC)</translation>
    </message>
    <message>
        <source>AV1 Image File (*.AVIF)</source>
        <translation>Image AV1 (*.AVIF)</translation>
    </message>
    <message>
        <source>JPEG XL (*.JXL)</source>
        <translation>JPEG XL (*.JXL)</translation>
    </message>
    <message>
        <source>Scalable Vector Graphics (*.SVG)</source>
        <translation>Dessin vectoriel (*.SVG)</translation>
    </message>
    <message>
        <source>Camera Files (*.DNG;*.CR2;*.NEF;*.ARW;*.RAF;*.ORF;*.RW2)</source>
        <translation>Fichiers d&apos;appareil photo (*.DNG;*.CR2;*.NEF;*.ARW;*.RAF;*.ORF;*.RW2)</translation>
    </message>
    <message>
        <source>All Supported graphic formats </source>
        <translation>Tous les formats graphiques pris en charge </translation>
    </message>
    <message>
        <source>Windows Bitmap Files (*.bmp)</source>
        <translation>Fichiers bitmap Windows (*.bmp)</translation>
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
        <translation>Format bitmap ASCII (*.ppm)(*.pgm)(*.pbm)</translation>
    </message>
    <message>
        <source>Windows Bitmap</source>
        <translation>Bitmap Windows</translation>
    </message>
    <message>
        <source>Meta Files</source>
        <translation>Métafichiers</translation>
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
        <translation>Portable Network Graphics</translation>
    </message>
    <message>
        <source>ZSoft Paintbrush Format</source>
        <translation>Format ZSoft Paintbrush</translation>
    </message>
    <message>
        <source>Wireless Bitmap</source>
        <translation>Bitmap sans fil</translation>
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
        <translation>Icône Windows</translation>
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
        <translation>Format Koala du Commodore 64</translation>
    </message>
    <message>
        <source>Kodak PhotoCD</source>
        <translation>Kodak PhotoCD</translation>
    </message>
    <message>
        <source>Sun Rasterfile</source>
        <translation>Fichier Sun Raster</translation>
    </message>
    <message>
        <source>Targa files</source>
        <translation>Fichiers Targa</translation>
    </message>
    <message>
        <source>Dr.Halo bitmap</source>
        <translation>Bitmap Dr.Halo</translation>
    </message>
    <message>
        <source>Interchanged File Format</source>
        <translation>Format d&apos;échange de fichiers</translation>
    </message>
    <message>
        <source>Deluxe Paint package</source>
        <translation>Deluxe Paint</translation>
    </message>
    <message>
        <source>WebP</source>
        <translation>WebP</translation>
    </message>
    <message>
        <source>High Efficiency Image File</source>
        <translation>Image à haute efficacité</translation>
    </message>
    <message>
        <source>AV1 Image File</source>
        <translation>Image AV1</translation>
    </message>
    <message>
        <source>JPEG XL</source>
        <translation>JPEG XL</translation>
    </message>
    <message>
        <source>Scalable Vector Graphics</source>
        <translation>Dessin vectoriel</translation>
    </message>
    <message>
        <source>Camera Files</source>
        <translation>Fichiers d&apos;appareil photo</translation>
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
        <translation>bitmap</translation>
    </message>
    <message>
        <source>a Windows metafile</source>
        <translation>métafichier Windows</translation>
    </message>
    <message>
        <source>an enhanced metafile</source>
        <translation>métafichier amélioré</translation>
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
        <translation>portable anymap</translation>
    </message>
    <message>
        <source>an icon</source>
        <translation>d&apos;icône</translation>
    </message>
    <message>
        <source>a cursor</source>
        <translation>de curseur</translation>
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
        <translation>Sun Raster</translation>
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
        <translation>d&apos;appareil photo</translation>
    </message>
</context>
<context>
    <name>Leftover</name>
    <message>
        <source>Recovered %1</source>
        <translation>%1 récupérée</translation>
    </message>
    <message>
        <source>Its pictures can&apos;t be read.</source>
        <translation>Ses images ne peuvent pas être lues.</translation>
    </message>
    <message>
        <source>A newer version of the program left it: its name is not known.</source>
        <translation>Une version plus récente du programme l&apos;a laissée : son nom est inconnu.</translation>
    </message>
    <message>
        <source>Its record is damaged: its name is not known.</source>
        <translation>Son enregistrement est endommagé : son nom est inconnu.</translation>
    </message>
    <message>
        <source>Its record is missing: its name is not known.</source>
        <translation>Son enregistrement manque : son nom est inconnu.</translation>
    </message>
    <message>
        <source>The last change could not be kept: this is the one before it.</source>
        <translation>La dernière modification n&apos;a pas pu être conservée : voici celle d&apos;avant.</translation>
    </message>
    <message>
        <source>Not all of its steps back could be kept.</source>
        <translation>Toutes ses étapes en arrière n&apos;ont pas pu être conservées.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation>&amp;Nouveau ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Ouvrir ...</translation>
    </message>
    <message>
        <source>&amp;Browse ...</source>
        <translation>&amp;Parcourir ...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir &amp;récent</translation>
    </message>
    <message>
        <source>Next Pa&amp;ge</source>
        <translation>Page sui&amp;vante</translation>
    </message>
    <message>
        <source>Prev&amp;ious Page</source>
        <translation>P&amp;age précédente</translation>
    </message>
    <message>
        <source>Reco&amp;ver ...</source>
        <translation>Ré&amp;cupérer ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Enre&amp;gistrer sous ...</translation>
    </message>
    <message>
        <source>Save A&amp;ll ...</source>
        <translation>&amp;Tout enregistrer ...</translation>
    </message>
    <message>
        <source>Save for &amp;Web ...</source>
        <translation>Enregistrer pour &amp;le Web ...</translation>
    </message>
    <message>
        <source>Scann&amp;er</source>
        <translation>&amp;Scanner</translation>
    </message>
    <message>
        <source>Acquire ...</source>
        <translation>Acquérir ...</translation>
    </message>
    <message>
        <source>Select Source ...</source>
        <translation>Choisir la source ...</translation>
    </message>
    <message>
        <source>Digital Camera</source>
        <translation>Appareil photo numérique</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Aperçu avant impression</translation>
    </message>
    <message>
        <source>Printer Setup ...</source>
        <translation>Configuration de l&apos;imprimante ...</translation>
    </message>
    <message>
        <source>Print ...</source>
        <translation>Imprimer ...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Couper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Copi&amp;er</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;ller</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select Non&amp;e</source>
        <translation>&amp;Ne rien sélectionner</translation>
    </message>
    <message>
        <source>In&amp;vert Selection</source>
        <translation>&amp;Inverser la sélection</translation>
    </message>
    <message>
        <source>Create &amp;New Copy</source>
        <translation>Créer &amp;une copie</translation>
    </message>
    <message>
        <source>Copy Image to Clip&amp;board</source>
        <translation>Copier l&apos;image &amp;dans le presse-papiers</translation>
    </message>
    <message>
        <source>Create &amp;from Clipboard</source>
        <translation>Créer à &amp;partir du presse-papiers</translation>
    </message>
    <message>
        <source>Cr&amp;op</source>
        <translation>Ro&amp;gner</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>Recettes</translation>
    </message>
    <message>
        <source>&amp;Run Recipe ...</source>
        <translation>&amp;Exécuter une recette ...</translation>
    </message>
    <message>
        <source>&amp;Save Recipe ...</source>
        <translation>Enregistrer &amp;la recette ...</translation>
    </message>
    <message>
        <source>Run on a &amp;Folder ...</source>
        <translation>Exécuter &amp;sur un dossier ...</translation>
    </message>
    <message>
        <source>I&amp;mage Properties</source>
        <translation>Propriété&amp;s de l&apos;image</translation>
    </message>
    <message>
        <source>Opt&amp;ions ...</source>
        <translation>&amp;Options ...</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Image</translation>
    </message>
    <message>
        <source>Image Size ...</source>
        <translation>Taille de l&apos;image ...</translation>
    </message>
    <message>
        <source>Canvas Size ...</source>
        <translation>Taille du canevas ...</translation>
    </message>
    <message>
        <source>Orientation ...</source>
        <translation>Orientation ...</translation>
    </message>
    <message>
        <source>Rotate ...</source>
        <translation>Rotation ...</translation>
    </message>
    <message>
        <source>Restore Original</source>
        <translation>Rétablir l&apos;original</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Zoom avant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom &amp;arrière</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Taille d&apos;origine</translation>
    </message>
    <message>
        <source>&amp;Quality Size</source>
        <translation>&amp;Taille en qualité</translation>
    </message>
    <message>
        <source>2 x larger</source>
        <translation>2 x plus grand</translation>
    </message>
    <message>
        <source>3 x larger</source>
        <translation>3 x plus grand</translation>
    </message>
    <message>
        <source>4 x larger</source>
        <translation>4 x plus grand</translation>
    </message>
    <message>
        <source>5 x larger</source>
        <translation>5 x plus grand</translation>
    </message>
    <message>
        <source>2 x smaller</source>
        <translation>2 x plus petit</translation>
    </message>
    <message>
        <source>3 x smaller</source>
        <translation>3 x plus petit</translation>
    </message>
    <message>
        <source>4 x smaller</source>
        <translation>4 x plus petit</translation>
    </message>
    <message>
        <source>5 x smaller</source>
        <translation>5 x plus petit</translation>
    </message>
    <message>
        <source>Quick Rotate</source>
        <translation>Rotation rapide</translation>
    </message>
    <message>
        <source>Quality Rotate</source>
        <translation>Rotation de qualité</translation>
    </message>
    <message>
        <source>Flip &amp;Horizontal</source>
        <translation>&amp;Retourner horizontalement</translation>
    </message>
    <message>
        <source>Flip &amp;Vertical</source>
        <translation>Retourner &amp;verticalement</translation>
    </message>
    <message>
        <source>&amp;Properties ...</source>
        <translation>&amp;Propriétés ...</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>&amp;Couleurs</translation>
    </message>
    <message>
        <source>Tweak RGB</source>
        <translation>Ajuster RVB</translation>
    </message>
    <message>
        <source>Old Photo</source>
        <translation>Vieille photo</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Coloriser</translation>
    </message>
    <message>
        <source>Sketch</source>
        <translation>Croquis</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>Isoler</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Décaler</translation>
    </message>
    <message>
        <source>Sepia Tone</source>
        <translation>Ton sépia</translation>
    </message>
    <message>
        <source>Hue Stretch</source>
        <translation>Étirement de teinte</translation>
    </message>
    <message>
        <source>Hue Rotation</source>
        <translation>Rotation de teinte</translation>
    </message>
    <message>
        <source>Grey Rotation</source>
        <translation>Rotation de gris</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Hue &amp;&amp; Saturation</source>
        <translation>Teinte &amp;&amp; saturation</translation>
    </message>
    <message>
        <source>Luminous</source>
        <translation>Lumineux</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Échanger</translation>
    </message>
    <message>
        <source>RGB To BRG</source>
        <translation>RVB vers BRV</translation>
    </message>
    <message>
        <source>RGB To GBR</source>
        <translation>RVB vers VBR</translation>
    </message>
    <message>
        <source>RGB To RBG</source>
        <translation>RVB vers RBV</translation>
    </message>
    <message>
        <source>RGB To BGR</source>
        <translation>RVB vers BVR</translation>
    </message>
    <message>
        <source>RGB To GRB</source>
        <translation>RVB vers VRB</translation>
    </message>
    <message>
        <source>RGB Banks</source>
        <translation>Canaux RVB</translation>
    </message>
    <message>
        <source>Add Colors</source>
        <translation>Ajouter des couleurs</translation>
    </message>
    <message>
        <source>Soft Red</source>
        <translation>Rouge doux</translation>
    </message>
    <message>
        <source>Hard Red</source>
        <translation>Rouge vif</translation>
    </message>
    <message>
        <source>Soft Green</source>
        <translation>Vert doux</translation>
    </message>
    <message>
        <source>Hard Green</source>
        <translation>Vert vif</translation>
    </message>
    <message>
        <source>Soft Blue</source>
        <translation>Bleu doux</translation>
    </message>
    <message>
        <source>Hard Blue</source>
        <translation>Bleu vif</translation>
    </message>
    <message>
        <source>Soft Yellow</source>
        <translation>Jaune doux</translation>
    </message>
    <message>
        <source>Hard Yellow</source>
        <translation>Jaune vif</translation>
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
        <translation>Pourpre</translation>
    </message>
    <message>
        <source>Retro</source>
        <translation>Rétro</translation>
    </message>
    <message>
        <source>Spotted</source>
        <translation>Tacheté</translation>
    </message>
    <message>
        <source>Wet Paper</source>
        <translation>Papier mouillé</translation>
    </message>
    <message>
        <source>Fi&amp;lters</source>
        <translation>Fi&amp;ltres</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation>Niveaux de gris</translation>
    </message>
    <message>
        <source>Relief</source>
        <translation>Relief</translation>
    </message>
    <message>
        <source>Erode</source>
        <translation>Éroder</translation>
    </message>
    <message>
        <source>Dilate</source>
        <translation>Dilater</translation>
    </message>
    <message>
        <source>Painting</source>
        <translation>Peinture</translation>
    </message>
    <message>
        <source>Edge Enhance</source>
        <translation>Renforcer les bords</translation>
    </message>
    <message>
        <source>Luminousity</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Léger</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Fort</translation>
    </message>
    <message>
        <source>Custom ...</source>
        <translation>Personnalisé ...</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>Estampage</translation>
    </message>
    <message>
        <source>Contour</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Diffuse</source>
        <translation>Diffuser</translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation>Gravure</translation>
    </message>
    <message>
        <source>Soften</source>
        <translation>Adoucir</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Accentuer</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Flou</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Bruit</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Flare</source>
        <translation>Éclat</translation>
    </message>
    <message>
        <source>Scanlines</source>
        <translation>Lignes de balayage</translation>
    </message>
    <message>
        <source>Effect&amp;s</source>
        <translation>&amp;Effets</translation>
    </message>
    <message>
        <source>Haftone</source>
        <translation>Demi-teinte</translation>
    </message>
    <message>
        <source>Pixelize</source>
        <translation>Pixeliser</translation>
    </message>
    <message>
        <source>Mosaic</source>
        <translation>Mosaïque</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Gamma Correction</source>
        <translation>Correction gamma</translation>
    </message>
    <message>
        <source>Thermique</source>
        <translation>Thermique</translation>
    </message>
    <message>
        <source>X-Black</source>
        <translation>X-Noir</translation>
    </message>
    <message>
        <source>Photo Cop</source>
        <translation>Photocopie</translation>
    </message>
    <message>
        <source>Shapes</source>
        <translation>Formes</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Lentille</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>Vagues</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Courber</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plier</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Étirer</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Mosaïque</translation>
    </message>
    <message>
        <source>Twirl</source>
        <translation>Tourbillon</translation>
    </message>
    <message>
        <source>Glass</source>
        <translation>Verre</translation>
    </message>
    <message>
        <source>Slanting</source>
        <translation>Oblique</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Squary</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>Curtain</source>
        <translation>Rideau</translation>
    </message>
    <message>
        <source>Classy</source>
        <translation>Élégant</translation>
    </message>
    <message>
        <source>Whity</source>
        <translation>Blanchi</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>Image Merging ...</source>
        <translation>Fusion d&apos;images ...</translation>
    </message>
    <message>
        <source>Screen Capture ...</source>
        <translation>Capture d&apos;écran ...</translation>
    </message>
    <message>
        <source>Image Textures ...</source>
        <translation>Textures d&apos;image ...</translation>
    </message>
    <message>
        <source>Image Resolution ...</source>
        <translation>Résolution de l&apos;image ...</translation>
    </message>
    <message>
        <source>Color Depth ...</source>
        <translation>Profondeur de couleur ...</translation>
    </message>
    <message>
        <source>Save for Web ...</source>
        <translation>Enregistrer pour le Web ...</translation>
    </message>
    <message>
        <source>Text Tools ...</source>
        <translation>Outils de texte ...</translation>
    </message>
    <message>
        <source>Icon Extractor ...</source>
        <translation>Extracteur d&apos;icônes ...</translation>
    </message>
    <message>
        <source>File Associations ...</source>
        <translation>Associations de fichiers ...</translation>
    </message>
    <message>
        <source>Quick Capture</source>
        <translation>Capture rapide</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Premier plan</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Set as Wallpaper</source>
        <translation>Définir comme fond d&apos;écran</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centrer</translation>
    </message>
    <message>
        <source>&amp;Views</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>Tile Horizontally</source>
        <translation>Mosaïque horizontale</translation>
    </message>
    <message>
        <source>Tile Vertically</source>
        <translation>Mosaïque verticale</translation>
    </message>
    <message>
        <source>Cascade</source>
        <translation>Cascade</translation>
    </message>
    <message>
        <source>New View</source>
        <translation>Nouvelle vue</translation>
    </message>
    <message>
        <source>Color Box</source>
        <translation>Boîte de couleurs</translation>
    </message>
    <message>
        <source>Textures Box</source>
        <translation>Boîte de textures</translation>
    </message>
    <message>
        <source>Clipboard Box</source>
        <translation>Boîte du presse-papiers</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Status Bar</source>
        <translation>Barre d&apos;état</translation>
    </message>
    <message>
        <source>Side Tools  Bar : Hide n Seek</source>
        <translation>Barre d&apos;outils latérale : cache-cache</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barres d&apos;outils</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>Utilitaires</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>Store Toolbar Layout</source>
        <translation>Mémoriser la disposition des barres</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Help ...</source>
        <translation>&amp;Aide ...</translation>
    </message>
    <message>
        <source>&amp;Find a Command ...</source>
        <translation>&amp;Trouver une commande ...</translation>
    </message>
    <message>
        <source>&amp;About Velara Studio</source>
        <translation>À &amp;propos de Velara Studio</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Glass: Horizontal</source>
        <translation>Verre : horizontal</translation>
    </message>
    <message>
        <source>Luminousity: Light</source>
        <translation>Luminosité : légère</translation>
    </message>
    <message>
        <source>Luminousity: Heavy</source>
        <translation>Luminosité : forte</translation>
    </message>
    <message>
        <source>Blur: Light</source>
        <translation>Flou : léger</translation>
    </message>
    <message>
        <source>Emboss: Light</source>
        <translation>Estampage : léger</translation>
    </message>
    <message>
        <source>Contour: Light</source>
        <translation>Contour : léger</translation>
    </message>
    <message>
        <source>Diffuse: Light</source>
        <translation>Diffuser : léger</translation>
    </message>
    <message>
        <source>Engrave: Light</source>
        <translation>Gravure : légère</translation>
    </message>
    <message>
        <source>Soften: Heavy</source>
        <translation>Adoucir : fort</translation>
    </message>
    <message>
        <source>Noise: Light</source>
        <translation>Bruit : léger</translation>
    </message>
    <message>
        <source>Saturation: Heavy</source>
        <translation>Saturation : forte</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>Taille d&apos;origine</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Quick rotate</source>
        <translation>Rotation rapide</translation>
    </message>
    <message>
        <source>Quality rotate</source>
        <translation>Rotation de qualité</translation>
    </message>
    <message>
        <source>Quality size</source>
        <translation>Taille en qualité</translation>
    </message>
    <message>
        <source>Save for web</source>
        <translation>Enregistrer pour le Web</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Capture d&apos;écran</translation>
    </message>
    <message>
        <source>Image resolution</source>
        <translation>Résolution de l&apos;image</translation>
    </message>
    <message>
        <source>Image merging</source>
        <translation>Fusion d&apos;images</translation>
    </message>
    <message>
        <source>Image textures</source>
        <translation>Textures d&apos;image</translation>
    </message>
    <message>
        <source>Color depth</source>
        <translation>Profondeur de couleur</translation>
    </message>
    <message>
        <source>Text tools</source>
        <translation>Outils de texte</translation>
    </message>
    <message>
        <source>Icon extractor</source>
        <translation>Extracteur d&apos;icônes</translation>
    </message>
    <message>
        <source>Quick capture</source>
        <translation>Capture rapide</translation>
    </message>
    <message>
        <source>Set as wallpaper</source>
        <translation>Définir comme fond d&apos;écran</translation>
    </message>
    <message>
        <source>About Velara Studio</source>
        <translation>À propos de Velara Studio</translation>
    </message>
    <message>
        <source>Scroll with the hand (H)</source>
        <translation>Faire défiler avec la main (H)</translation>
    </message>
    <message>
        <source>Zoom in (Ctrl++)</source>
        <translation>Zoom avant (Ctrl++)</translation>
    </message>
    <message>
        <source>Zoom out (Ctrl+-)</source>
        <translation>Zoom arrière (Ctrl+-)</translation>
    </message>
    <message>
        <source>Pictures that were not saved when the program ended</source>
        <translation>Images non enregistrées à la fin du programme</translation>
    </message>
    <message>
        <source>The next page or frame of the file, in a window of its own</source>
        <translation>La page ou l&apos;image suivante du fichier, dans sa propre fenêtre</translation>
    </message>
    <message>
        <source>The page or frame of the file before this one</source>
        <translation>La page ou l&apos;image du fichier qui précède celle-ci</translation>
    </message>
    <message>
        <source>What was done to this picture</source>
        <translation>Ce qui a été fait à cette image</translation>
    </message>
    <message>
        <source>Writes every changed picture to its own file</source>
        <translation>Écrit chaque image modifiée dans son propre fichier</translation>
    </message>
    <message>
        <source>Does the steps of a recipe to this picture, as one</source>
        <translation>Applique les étapes d&apos;une recette à cette image, en une seule fois</translation>
    </message>
    <message>
        <source>Keeps what was done to this picture, to do it to others</source>
        <translation>Garde ce qui a été fait à cette image, pour l&apos;appliquer à d&apos;autres</translation>
    </message>
    <message>
        <source>Does a recipe to many pictures, beside the editor</source>
        <translation>Applique une recette à beaucoup d&apos;images, à côté de l&apos;éditeur</translation>
    </message>
    <message>
        <source>Mixes each pixel from those one pixel away: too little to hide anything</source>
        <translation>Mélange chaque pixel avec ses voisins directs : trop peu pour cacher quoi que ce soit</translation>
    </message>
    <message>
        <source>Mixes each pixel from those two pixels away: too little to hide anything</source>
        <translation>Mélange chaque pixel avec ceux à deux pixels : trop peu pour cacher quoi que ce soit</translation>
    </message>
    <message>
        <source>Mixes each pixel from those up to two pixels away: too little to hide anything</source>
        <translation>Mélange chaque pixel avec ceux jusqu&apos;à deux pixels : trop peu pour cacher quoi que ce soit</translation>
    </message>
    <message>
        <source>Squares of one colour: hides a face or a number plate</source>
        <translation>Des carrés d&apos;une seule couleur : cache un visage ou une plaque</translation>
    </message>
    <message>
        <source>&amp;Keys and Mouse ...</source>
        <translation>Touches et &amp;souris ...</translation>
    </message>
    <message>
        <source>The manual, at the page of what you are doing</source>
        <translation>Le manuel, à la page de ce que vous faites</translation>
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
        <translation>Appareil photo</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Lentille</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exposition</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>nothing was cut or copied</source>
        <translation>rien n&apos;a été coupé ni copié</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>What is pasted is larger than the picture.</source>
        <translation>Ce qui est collé est plus grand que l&apos;image.</translation>
    </message>
    <message>
        <source>&amp;Enlarge the picture</source>
        <translation>&amp;Agrandir l&apos;image</translation>
    </message>
    <message>
        <source>&amp;Keep its size</source>
        <translation>&amp;Garder sa taille</translation>
    </message>
    <message>
        <source>The screen gave no picture.</source>
        <translation>L&apos;écran n&apos;a fourni aucune image.</translation>
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
et %n de plus</numerusform>
            <numerusform>
et %n de plus</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReadingBox</name>
    <message>
        <source>Reading %1 ...</source>
        <translation>Lecture de %1 ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>it is damaged or not %1 picture</source>
        <translation>il est endommagé ou n&apos;est pas une image %1</translation>
    </message>
    <message>
        <source>it is damaged, and its reader gave up</source>
        <translation>il est endommagé, et son lecteur a abandonné</translation>
    </message>
    <message>
        <source>it is damaged, and its reader wanted what no picture needs</source>
        <translation>il est endommagé, et son lecteur a demandé ce dont aucune image n&apos;a besoin</translation>
    </message>
    <message>
        <source>it is damaged: it has hardly any bytes for its %1 x %2 pixels</source>
        <translation>il est endommagé : il n&apos;a presque pas d&apos;octets pour ses %1 x %2 pixels</translation>
    </message>
    <message>
        <source>it is damaged: some of its pixels are missing</source>
        <translation>il est endommagé : il lui manque des pixels</translation>
    </message>
    <message>
        <source>it is damaged between its first row and its last</source>
        <translation>il est endommagé entre sa première et sa dernière ligne</translation>
    </message>
    <message>
        <source>it is cut off: its end is missing</source>
        <translation>il est tronqué : sa fin manque</translation>
    </message>
    <message>
        <source>it is wider or higher than 32767 pixels, or has more than 268 million pixels</source>
        <translation>il dépasse 32767 pixels de large ou de haut, ou compte plus de 268 millions de pixels</translation>
    </message>
    <message>
        <source>it needs more memory than reading a picture may take</source>
        <translation>il demande plus de mémoire que la lecture d&apos;une image ne peut en prendre</translation>
    </message>
    <message>
        <source>it is empty or can&apos;t be opened</source>
        <translation>il est vide ou ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>it has more than two gigabytes</source>
        <translation>il fait plus de deux gigaoctets</translation>
    </message>
    <message>
        <source>its name has no extension to tell what it is</source>
        <translation>son nom n&apos;a pas d&apos;extension qui dise ce qu&apos;il est</translation>
    </message>
    <message>
        <source>there is no reader for .%1 files</source>
        <translation>il n&apos;y a pas de lecteur pour les fichiers .%1</translation>
    </message>
    <message>
        <source>its reader could not be locked in (%1)</source>
        <translation>son lecteur n&apos;a pas pu être isolé (%1)</translation>
    </message>
    <message>
        <source>velara-decode-all, which reads %1 picture, can&apos;t be started</source>
        <translation>velara-decode-all, qui lit une image %1, ne peut pas être lancé</translation>
    </message>
    <message>
        <source>this build lacks the library that reads %1 picture</source>
        <translation>il manque à ce programme la bibliothèque qui lit une image %1</translation>
    </message>
    <message>
        <source>the library that reads HEIF and AVIF pictures (libheif) is missing</source>
        <translation>la bibliothèque qui lit les images HEIF et AVIF (libheif) est absente</translation>
    </message>
    <message>
        <source>the library that reads JPEG XL pictures (libjxl) is missing</source>
        <translation>la bibliothèque qui lit les images JPEG XL (libjxl) est absente</translation>
    </message>
    <message>
        <source>the fonts that metafiles are drawn with are missing</source>
        <translation>les polices avec lesquelles se dessinent les métafichiers sont absentes</translation>
    </message>
    <message>
        <source>it has only %1 pages</source>
        <translation>il n&apos;a que %1 pages</translation>
    </message>
    <message>
        <source>it has only one page</source>
        <translation>il n&apos;a qu&apos;une page</translation>
    </message>
    <message>
        <source>reading it was given up</source>
        <translation>sa lecture a été abandonnée</translation>
    </message>
    <message>
        <source>reading it took too long and was stopped</source>
        <translation>sa lecture a duré trop longtemps et a été arrêtée</translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) gave a false answer</source>
        <translation>le programme qui lit les images (velara-decode) a donné une réponse fausse</translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) can&apos;t be started</source>
        <translation>le programme qui lit les images (velara-decode) ne peut pas être lancé</translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) was not found</source>
        <translation>le programme qui lit les images (velara-decode) est introuvable</translation>
    </message>
    <message>
        <source>a sanitizer stopped its reader</source>
        <translation>un détecteur d&apos;erreurs a arrêté son lecteur</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n&apos;existe pas</translation>
    </message>
    <message>
        <source>there is no permission to read it</source>
        <translation>vous n&apos;avez pas le droit de le lire</translation>
    </message>
    <message>
        <source>the system says &quot;%1&quot;</source>
        <translation>le système indique « %1 »</translation>
    </message>
    <message>
        <source>the system tells nothing about it</source>
        <translation>le système n&apos;en dit rien</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c&apos;est un dossier</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>ce n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>it has more than the %1 pixels that limits.conf allows</source>
        <translation>il a plus que les %1 pixels permis par limits.conf</translation>
    </message>
    <message>
        <source>limits.conf has turned .%1 files off</source>
        <translation>limits.conf a désactivé les fichiers .%1</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>il n&apos;y a pas assez de mémoire pour lui</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>il n&apos;y a pas assez de mémoire</translation>
    </message>
    <message>
        <source>no room in the Temp folder</source>
        <translation>pas de place dans le dossier Temp</translation>
    </message>
    <message>
        <source>the Temp folder can&apos;t be written to</source>
        <translation>impossible d&apos;écrire dans le dossier Temp</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Dépassement de capacité</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division par zéro</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Indice hors limites</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Rien de sélectionné</translation>
    </message>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation>Taille minimale : 2 x 2</translation>
    </message>
    <message>
        <source>Internal Error</source>
        <translation>Erreur interne</translation>
    </message>
    <message>
        <source>There was an error while saving! Please Restart Velara&apos;s Studio</source>
        <translation>Une erreur s&apos;est produite à l&apos;enregistrement ! Veuillez redémarrer Velara Studio</translation>
    </message>
    <message>
        <source>Collection of ASCII based bitmap</source>
        <translation>Ensemble de bitmaps ASCII</translation>
    </message>
    <message>
        <source>A WebP picture has at most 16383 pixels a side.</source>
        <translation>Une image WebP a au plus 16383 pixels de côté.</translation>
    </message>
    <message>
        <source>This facility is currently turned Off!</source>
        <translation>Cette fonction est actuellement désactivée !</translation>
    </message>
    <message>
        <source>I don&apos;t know how to put a DIB on the clipboard! Copy as bitmap instead!!!</source>
        <translation>Je ne sais pas mettre un DIB dans le presse-papiers ! Copiez plutôt comme bitmap !!!</translation>
    </message>
    <message>
        <source>the page can&apos;t be read</source>
        <translation>la page ne peut pas être lue</translation>
    </message>
    <message>
        <source>the page can&apos;t be written</source>
        <translation>la page ne peut pas être écrite</translation>
    </message>
    <message>
        <source>the file can&apos;t be written</source>
        <translation>le fichier ne peut pas être écrit</translation>
    </message>
    <message>
        <source>the print server does not answer</source>
        <translation>le serveur d&apos;impression ne répond pas</translation>
    </message>
    <message>
        <source>there is no print server</source>
        <translation>il n&apos;y a pas de serveur d&apos;impression</translation>
    </message>
    <message>
        <source>there is no printer %1 any more</source>
        <translation>il n&apos;y a plus d&apos;imprimante %1</translation>
    </message>
    <message>
        <source>the print server has not taken the page</source>
        <translation>le serveur d&apos;impression n&apos;a pas pris la page</translation>
    </message>
    <message>
        <source>%1 refused the page</source>
        <translation>%1 a refusé la page</translation>
    </message>
    <message>
        <source>The printer %1 is paused. The page waits in its queue.</source>
        <translation>L&apos;imprimante %1 est en pause. La page attend dans sa file.</translation>
    </message>
    <message>
        <source>The page is held in the queue of the printer %1.</source>
        <translation>La page est retenue dans la file de l&apos;imprimante %1.</translation>
    </message>
    <message>
        <source>The picture of the screen is all black.</source>
        <translation>L&apos;image de l&apos;écran est toute noire.</translation>
    </message>
    <message>
        <source>a profile that can&apos;t be read</source>
        <translation>un profil illisible</translation>
    </message>
    <message>
        <source>%1 bits a pixel in the file</source>
        <translation>%1 bits par pixel dans le fichier</translation>
    </message>
    <message>
        <source>%1 x %2 dots per inch</source>
        <translation>%1 x %2 points par pouce</translation>
    </message>
    <message>
        <source>it is too large for a recipe</source>
        <translation>il est trop grand pour une recette</translation>
    </message>
    <message>
        <source>a recipe begins with &quot;%1&quot;</source>
        <translation>une recette commence par « %1 »</translation>
    </message>
    <message>
        <source>the recipe is of version %1, and this program knows those up to %2</source>
        <translation>la recette est de version %1, et ce programme les connaît jusqu&apos;à %2</translation>
    </message>
    <message>
        <source>%1 is no step; of the options only %2 SHAPE is</source>
        <translation>%1 n&apos;est pas une étape ; parmi les options, seule %2 SHAPE en est une</translation>
    </message>
    <message>
        <source>%1 is a command word and takes no arguments</source>
        <translation>%1 est un mot de commande et ne prend pas d&apos;arguments</translation>
    </message>
    <message>
        <source>the closing bracket is missing</source>
        <translation>la parenthèse fermante manque</translation>
    </message>
    <message>
        <source>there is no pixel in it</source>
        <translation>elle ne contient aucun pixel</translation>
    </message>
    <message>
        <source>PBM, PGM and PPM: If the bitmap has a bit depth of 1, the file is saved as a PBM file. If the bitmap has a bit depth of 8, the file is saved as a PGM file. If the bitmap has a bit depth of 24, the file is saved as a PPM file. Other bit depths are not supported. The file you requested is saved as 24-bit True Color (.ppm) format.</source>
        <translation>PBM, PGM et PPM : si le bitmap a une profondeur de 1 bit, le fichier est enregistré en PBM ; de 8 bits, en PGM ; de 24 bits, en PPM. Les autres profondeurs ne sont pas prises en charge. Le fichier demandé est enregistré au format 24 bits (.ppm).</translation>
    </message>
    <message>
        <source>it needs %1 of memory, more than half of the %2 that are free</source>
        <translation>il demande %1 de mémoire, plus de la moitié des %2 libres</translation>
    </message>
    <message>
        <source>the picture would have %1</source>
        <translation>l&apos;image aurait %1</translation>
    </message>
    <message>
        <source>no pixels</source>
        <translation>aucun pixel</translation>
    </message>
    <message>
        <source>%1 x %2 pixels; a side has at most %3</source>
        <translation>%1 x %2 pixels ; un côté en a au plus %3</translation>
    </message>
    <message>
        <source>%1 megapixels (%2 x %3 pixels); at most %4 are possible</source>
        <translation>%1 mégapixels (%2 x %3 pixels) ; %4 au plus sont possibles</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 ne peut pas être lu</translation>
    </message>
    <message>
        <source>its pixels are of a kind that isn&apos;t read: %1 x %2 bits</source>
        <translation>Ses pixels sont d’un type qui n’est pas lu : %1 x %2 bits</translation>
    </message>
    <message>
        <source>it has fewer inks than cyan, magenta and yellow</source>
        <translation>Il a moins d’encres que cyan, magenta et jaune</translation>
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
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Windows 256</source>
        <translation>Windows 256</translation>
    </message>
    <message>
        <source>GIF-2 Colors</source>
        <translation>GIF-2 couleurs</translation>
    </message>
    <message>
        <source>2 Colors</source>
        <translation>2 couleurs</translation>
    </message>
    <message>
        <source>GIF-4 Colors</source>
        <translation>GIF-4 couleurs</translation>
    </message>
    <message>
        <source>4 Colors</source>
        <translation>4 couleurs</translation>
    </message>
    <message>
        <source>GIF-8 Colors</source>
        <translation>GIF-8 couleurs</translation>
    </message>
    <message>
        <source>8 Colors</source>
        <translation>8 couleurs</translation>
    </message>
    <message>
        <source>GIF-16 Colors</source>
        <translation>GIF-16 couleurs</translation>
    </message>
    <message>
        <source>16 Colors</source>
        <translation>16 couleurs</translation>
    </message>
    <message>
        <source>GIF-32 Colors</source>
        <translation>GIF-32 couleurs</translation>
    </message>
    <message>
        <source>32 Colors</source>
        <translation>32 couleurs</translation>
    </message>
    <message>
        <source>GIF-64 Colors</source>
        <translation>GIF-64 couleurs</translation>
    </message>
    <message>
        <source>64 Colors</source>
        <translation>64 couleurs</translation>
    </message>
    <message>
        <source>GIF-128 Colors</source>
        <translation>GIF-128 couleurs</translation>
    </message>
    <message>
        <source>128 Colors</source>
        <translation>128 couleurs</translation>
    </message>
    <message>
        <source>GIF-256 Colors</source>
        <translation>GIF-256 couleurs</translation>
    </message>
    <message>
        <source>256 Colors</source>
        <translation>256 couleurs</translation>
    </message>
    <message>
        <source>BMP-2 Colors</source>
        <translation>BMP-2 couleurs</translation>
    </message>
    <message>
        <source>BMP-16 Colors</source>
        <translation>BMP-16 couleurs</translation>
    </message>
    <message>
        <source>BMP-256 Colors</source>
        <translation>BMP-256 couleurs</translation>
    </message>
    <message>
        <source>BMP-16 bit</source>
        <translation>BMP-16 bits</translation>
    </message>
    <message>
        <source>16 bit</source>
        <translation>16 bits</translation>
    </message>
    <message>
        <source>BMP-24 bit</source>
        <translation>BMP-24 bits</translation>
    </message>
    <message>
        <source>24 bit</source>
        <translation>24 bits</translation>
    </message>
    <message>
        <source>PNG-8 bit</source>
        <translation>PNG-8 bits</translation>
    </message>
    <message>
        <source>8 bit</source>
        <translation>8 bits</translation>
    </message>
    <message>
        <source>PNG-24 bit</source>
        <translation>PNG-24 bits</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>PCX-24 bit (Compressed)</source>
        <translation>PCX-24 bits (compressé)</translation>
    </message>
    <message>
        <source>PCX-24 bit (Uncompressed)</source>
        <translation>PCX-24 bits (non compressé)</translation>
    </message>
    <message>
        <source>TGA-24 bit (Compressed)</source>
        <translation>TGA-24 bits (compressé)</translation>
    </message>
    <message>
        <source>TGA-24 bit (Uncompressed)</source>
        <translation>TGA-24 bits (non compressé)</translation>
    </message>
    <message>
        <source>TIFF-24 bit (Uncompressed)</source>
        <translation>TIFF-24 bits (non compressé)</translation>
    </message>
    <message>
        <source>WebP</source>
        <translation>WebP</translation>
    </message>
    <message>
        <source>WebP (Lossless)</source>
        <translation>WebP (sans perte)</translation>
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
        <translation>Table MS</translation>
    </message>
    <message>
        <source>Optimal</source>
        <translation>Optimal</translation>
    </message>
    <message>
        <source>Fixed Color</source>
        <translation>Couleurs fixes</translation>
    </message>
    <message>
        <source>VGA</source>
        <translation>VGA</translation>
    </message>
    <message>
        <source>iNet</source>
        <translation>iNet</translation>
    </message>
    <message>
        <source>MS 256</source>
        <translation>MS 256</translation>
    </message>
    <message>
        <source>Fixed Grey</source>
        <translation>Gris fixes</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binaire</translation>
    </message>
    <message>
        <source>Ordered</source>
        <translation>Ordonné</translation>
    </message>
    <message>
        <source>Haftone</source>
        <translation>Demi-teinte</translation>
    </message>
    <message>
        <source>Forward Diag</source>
        <translation>Diag. montante</translation>
    </message>
    <message>
        <source>Backward Diag</source>
        <translation>Diag. descendante</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Impair</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Pair</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation>Égal</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation>Niveaux de gris</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Mauvaise</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bonne</translation>
    </message>
    <message>
        <source>Superb</source>
        <translation>Superbe</translation>
    </message>
</context>
<context>
    <name>Search words</name>
    <message>
        <source>blank empty create</source>
        <translation>vierge vide créer</translation>
    </message>
    <message>
        <source>load import file</source>
        <translation>charger importer fichier</translation>
    </message>
    <message>
        <source>scan paper</source>
        <translation>numériser papier</translation>
    </message>
    <message>
        <source>screenshot whole screen</source>
        <translation>capture tout l&apos;écran</translation>
    </message>
    <message>
        <source>back revert mistake</source>
        <translation>retour revenir erreur</translation>
    </message>
    <message>
        <source>again forward</source>
        <translation>refaire avant</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>dupliquer</translation>
    </message>
    <message>
        <source>paste as new picture</source>
        <translation>coller comme nouvelle image</translation>
    </message>
    <message>
        <source>resize scale percent width height pixels larger smaller</source>
        <translation>redimensionner échelle pour cent largeur hauteur pixels agrandir réduire</translation>
    </message>
    <message>
        <source>border margin room enlarge</source>
        <translation>bordure marge place agrandir</translation>
    </message>
    <message>
        <source>turn portrait landscape</source>
        <translation>tourner portrait paysage</translation>
    </message>
    <message>
        <source>turn angle degrees straighten horizon</source>
        <translation>tourner angle degrés redresser horizon</translation>
    </message>
    <message>
        <source>export rename convert format</source>
        <translation>exporter renommer convertir format</translation>
    </message>
    <message>
        <source>insert clipboard</source>
        <translation>insérer presse-papiers</translation>
    </message>
    <message>
        <source>cut out trim margins</source>
        <translation>découper couper marges</translation>
    </message>
    <message>
        <source>settings preferences configure</source>
        <translation>réglages préférences configurer</translation>
    </message>
    <message>
        <source>overlay blend double exposure two pictures</source>
        <translation>superposer mélanger double exposition deux images</translation>
    </message>
    <message>
        <source>resize</source>
        <translation>redimensionner</translation>
    </message>
    <message>
        <source>export gif jpeg png small kilobytes compress quality</source>
        <translation>exporter gif jpeg png petit kilooctets compresser qualité</translation>
    </message>
    <message>
        <source>palette indexed 256 16 colours reduce dither</source>
        <translation>palette indexée 256 16 couleurs réduire tramage</translation>
    </message>
    <message>
        <source>write letters caption font</source>
        <translation>écrire lettres légende police</translation>
    </message>
    <message>
        <source>desktop background</source>
        <translation>fond du bureau</translation>
    </message>
    <message>
        <source>thumbnails folder gallery</source>
        <translation>vignettes dossier galerie</translation>
    </message>
    <message>
        <source>crash unsaved restore lost</source>
        <translation>plantage perdu restaurer non enregistré</translation>
    </message>
    <message>
        <source>screenshot window screen</source>
        <translation>capture fenêtre écran</translation>
    </message>
    <message>
        <source>ico extract</source>
        <translation>ico extraire</translation>
    </message>
    <message>
        <source>tiff gif animation icon</source>
        <translation>tiff gif animation icône</translation>
    </message>
    <message>
        <source>default program double click</source>
        <translation>programme par défaut double clic</translation>
    </message>
    <message>
        <source>quit close</source>
        <translation>quitter fermer</translation>
    </message>
    <message>
        <source>second window</source>
        <translation>deuxième fenêtre</translation>
    </message>
    <message>
        <source>exif camera date place gps profile metadata information facts</source>
        <translation>exif appareil date lieu gps profil métadonnées informations</translation>
    </message>
    <message>
        <source>version licence</source>
        <translation>version licence</translation>
    </message>
    <message>
        <source>deselect</source>
        <translation>désélectionner</translation>
    </message>
    <message>
        <source>undo steps states back</source>
        <translation>annuler étapes états retour</translation>
    </message>
    <message>
        <source>every open</source>
        <translation>toutes ouvertes</translation>
    </message>
    <message>
        <source>macro action script batch replay</source>
        <translation>macro action script lot rejouer</translation>
    </message>
    <message>
        <source>macro action script batch record</source>
        <translation>macro action script lot enregistrer</translation>
    </message>
    <message>
        <source>batch many pictures macro convert all</source>
        <translation>lot plusieurs images macro convertir tout</translation>
    </message>
    <message>
        <source>negative</source>
        <translation>négatif</translation>
    </message>
    <message>
        <source>black and white grey monochrome</source>
        <translation>noir et blanc gris monochrome</translation>
    </message>
    <message>
        <source>crisp focus</source>
        <translation>net mise au point</translation>
    </message>
    <message>
        <source>soft unsharp</source>
        <translation>doux flou</translation>
    </message>
    <message>
        <source>vintage brown</source>
        <translation>ancien brun</translation>
    </message>
    <message>
        <source>vintage brown old</source>
        <translation>ancien brun vieux</translation>
    </message>
    <message>
        <source>mirror left right</source>
        <translation>miroir gauche droite</translation>
    </message>
    <message>
        <source>mirror top bottom upside down</source>
        <translation>miroir haut bas à l&apos;envers</translation>
    </message>
    <message>
        <source>zoom 100 % actual pixels</source>
        <translation>zoom 100 % pixels réels</translation>
    </message>
    <message>
        <source>turn right clockwise</source>
        <translation>tourner à droite sens horaire</translation>
    </message>
    <message>
        <source>turn upside down</source>
        <translation>tourner à l&apos;envers</translation>
    </message>
    <message>
        <source>turn left counterclockwise</source>
        <translation>tourner à gauche sens antihoraire</translation>
    </message>
    <message>
        <source>tint hue</source>
        <translation>teinter teinte</translation>
    </message>
    <message>
        <source>brightness lighter darker exposure</source>
        <translation>luminosité plus clair plus sombre exposition</translation>
    </message>
    <message>
        <source>lighter darker exposure</source>
        <translation>plus clair plus sombre exposition</translation>
    </message>
    <message>
        <source>fade dull</source>
        <translation>fade terne</translation>
    </message>
    <message>
        <source>hide a face censor anonymous number plate mosaic blocks</source>
        <translation>cacher un visage censurer anonyme plaque mosaïque blocs</translation>
    </message>
    <message>
        <source>recolour change colour</source>
        <translation>recolorer changer couleur</translation>
    </message>
    <message>
        <source>grain</source>
        <translation>grain</translation>
    </message>
    <message>
        <source>manual guide documentation how</source>
        <translation>manuel guide documentation comment</translation>
    </message>
    <message>
        <source>keys shortcuts keyboard</source>
        <translation>touches raccourcis clavier</translation>
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
        <translation>Canevas</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Lin</translation>
    </message>
    <message>
        <source>Brick</source>
        <translation>Brique</translation>
    </message>
    <message>
        <source>Stone</source>
        <translation>Pierre</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sable</translation>
    </message>
    <message>
        <source>Wood</source>
        <translation>Bois</translation>
    </message>
    <message>
        <source>Weave</source>
        <translation>Tissage</translation>
    </message>
    <message>
        <source>Ripple</source>
        <translation>Ondulation</translation>
    </message>
    <message>
        <source>Leather</source>
        <translation>Cuir</translation>
    </message>
    <message>
        <source>Frosted glass</source>
        <translation>Verre dépoli</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Esc or right button: drop</source>
        <translation>Échap ou bouton droit : abandonner</translation>
    </message>
    <message>
        <source>Space: fix and go on · Esc: drop</source>
        <translation>Espace : fixer et continuer · Échap : abandonner</translation>
    </message>
    <message>
        <source>Click: lay down · Space: fix and go on · Esc: drop</source>
        <translation>Clic : déposer · Espace : fixer et continuer · Échap : abandonner</translation>
    </message>
    <message>
        <source>Space: corner · Enter: close · Esc: drop</source>
        <translation>Espace : sommet · Entrée : fermer · Échap : abandonner</translation>
    </message>
    <message>
        <source>Click: corner · Enter or double click: close · Esc: drop</source>
        <translation>Clic : sommet · Entrée ou double clic : fermer · Échap : abandonner</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Prélever une couleur</translation>
    </message>
    <message>
        <source>Move the selection</source>
        <translation>Déplacer la sélection</translation>
    </message>
    <message>
        <source>What moves</source>
        <translation>Ce qui se déplace</translation>
    </message>
    <message>
        <source>Move Selection Only</source>
        <translation>Déplacer la sélection seule</translation>
    </message>
    <message>
        <source>Move Content Only</source>
        <translation>Déplacer le contenu seul</translation>
    </message>
    <message>
        <source>&amp;Use this intensity</source>
        <translation>&amp;Utiliser cette intensité</translation>
    </message>
    <message>
        <source>Instead of the selection&apos;s pressure</source>
        <translation>Au lieu de la pression de la sélection</translation>
    </message>
    <message>
        <source>Opaque Intensity</source>
        <translation>Intensité opaque</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Mode of selecting</source>
        <translation>Mode de sélection</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Soustraire</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Shape of the selection</source>
        <translation>Forme de la sélection</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Polygon/Free hand</source>
        <translation>Polygone/main levée</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>&amp;Move selection</source>
        <translation>&amp;Déplacer la sélection</translation>
    </message>
    <message>
        <source>Move region / move pixels</source>
        <translation>Déplacer la zone / les pixels</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinceau</translation>
    </message>
    <message>
        <source>Mode of the brush</source>
        <translation>Mode du pinceau</translation>
    </message>
    <message>
        <source>Current color</source>
        <translation>Couleur actuelle</translation>
    </message>
    <message>
        <source>Current stamp</source>
        <translation>Tampon actuel</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Assombrir</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Éclaircir</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Accentuer</translation>
    </message>
    <message>
        <source>Soften</source>
        <translation>Adoucir</translation>
    </message>
    <message>
        <source>Soften (Overlay)</source>
        <translation>Adoucir (superposé)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>What fills</source>
        <translation>Ce qui remplit</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolérance</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forme</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Free hand</source>
        <translation>Main levée</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cercle</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygone</translation>
    </message>
    <message>
        <source>Pol. sides</source>
        <translation>Côtés pol.</translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation>Aérographe</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Définition</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Tampon</translation>
    </message>
    <message>
        <source>&amp;Mask color :</source>
        <translation>&amp;Couleur de masque :</translation>
    </message>
    <message>
        <source>Use mask color</source>
        <translation>Utiliser la couleur de masque</translation>
    </message>
    <message>
        <source>Mask color</source>
        <translation>Couleur de masque</translation>
    </message>
    <message>
        <source>&amp;Stamp mask</source>
        <translation>&amp;Masque du tampon</translation>
    </message>
    <message>
        <source>Current color stamp</source>
        <translation>Tampon à la couleur actuelle</translation>
    </message>
    <message>
        <source>&amp;Clear back</source>
        <translation>&amp;Effacer le fond</translation>
    </message>
    <message>
        <source>Clear stamp track</source>
        <translation>Effacer la trace du tampon</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Dégradé</translation>
    </message>
    <message>
        <source>Form of the gradient</source>
        <translation>Forme du dégradé</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linéaire</translation>
    </message>
    <message>
        <source>Circular</source>
        <translation>Circulaire</translation>
    </message>
    <message>
        <source>First color</source>
        <translation>Première couleur</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>Deuxième couleur</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Amount %</source>
        <translation>Quantité %</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Crayon</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
</context>
<context>
    <name>velara::Appearance</name>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>High contrast, light</source>
        <translation>Contraste élevé, clair</translation>
    </message>
    <message>
        <source>High contrast, dark</source>
        <translation>Contraste élevé, sombre</translation>
    </message>
</context>
<context>
    <name>velara::Bars</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir %1</translation>
    </message>
    <message>
        <source>Not available yet</source>
        <translation>Pas encore disponible</translation>
    </message>
    <message>
        <source> (not available yet)</source>
        <translation> (pas encore disponible)</translation>
    </message>
</context>
<context>
    <name>velara::Capture</name>
    <message>
        <source>Capture</source>
        <translation>Capture</translation>
    </message>
    <message>
        <source>Waiting for the desktop&apos;s picture ...</source>
        <translation>En attente de l&apos;image du bureau ...</translation>
    </message>
    <message>
        <source>the screen gave no picture</source>
        <translation>l&apos;écran n&apos;a fourni aucune image</translation>
    </message>
</context>
<context>
    <name>velara::Documents</name>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
</context>
<context>
    <name>velara::FEffect</name>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Afficher </translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Apply the effect</source>
        <translation>Appliquer l&apos;effet</translation>
    </message>
</context>
<context>
    <name>velara::FGradient</name>
    <message>
        <source>The gradient</source>
        <translation>Le dégradé</translation>
    </message>
</context>
<context>
    <name>velara::FStamp</name>
    <message>
        <source>Stamp sub-Folder Not Found!</source>
        <translation>Sous-dossier des tampons introuvable !</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Tampon</translation>
    </message>
    <message>
        <source>Stamp files</source>
        <translation>Fichiers de tampons</translation>
    </message>
    <message>
        <source>The chosen stamp</source>
        <translation>Le tampon choisi</translation>
    </message>
    <message>
        <source>&lt;Stamps&gt; subfolder not found.</source>
        <translation>Sous-dossier &lt;Stamps&gt; introuvable.</translation>
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
        <translation>Optimisée</translation>
    </message>
    <message>
        <source>Original, above the optimized</source>
        <translation>Original, au-dessus de l&apos;optimisée</translation>
    </message>
    <message>
        <source>Optimized, below the original</source>
        <translation>Optimisée, sous l&apos;original</translation>
    </message>
    <message>
        <source>Customized Save Options </source>
        <translation>Options d&apos;enregistrement personnalisées </translation>
    </message>
    <message>
        <source>Files of this format have no place for it</source>
        <translation>Les fichiers de ce format n&apos;ont pas de place pour cela</translation>
    </message>
    <message>
        <source>Enter value between 1 to 99 !</source>
        <translation>Saisissez une valeur entre 1 et 99 !</translation>
    </message>
    <message>
        <source>Please Choose a higher image format!</source>
        <translation>Veuillez choisir un format d&apos;image supérieur !</translation>
    </message>
    <message>
        <source>The current format cannot be applied to the image!</source>
        <translation>Le format actuel ne peut pas être appliqué à l&apos;image !</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written%2.</source>
        <translation>%1 ne peut pas être écrit%2.</translation>
    </message>
    <message>
        <source>%L1 bytes</source>
        <translation>%L1 octets</translation>
    </message>
    <message>
        <source>%1 % of the original file</source>
        <translation>%1 % du fichier d&apos;origine</translation>
    </message>
    <message>
        <source>no loss</source>
        <translation>sans perte</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>No quality makes it as small as %1 KB.</source>
        <translation>Aucune qualité ne le réduit à %1 Ko.</translation>
    </message>
    <message>
        <source>No number of colors makes it as small as %1 KB.</source>
        <translation>Aucun nombre de couleurs ne le réduit à %1 Ko.</translation>
    </message>
    <message>
        <source>Save Optimized As</source>
        <translation>Enregistrer l&apos;image optimisée sous</translation>
    </message>
    <message>
        <source>File format</source>
        <translation>Format du fichier</translation>
    </message>
    <message>
        <source>Choose a format</source>
        <translation>Choisissez un format</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>&amp;All formats ...</source>
        <translation>&amp;Tous les formats ...</translation>
    </message>
    <message>
        <source>Size and loss of this picture in every format</source>
        <translation>Taille et perte de cette image dans chaque format</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>Comme le prévoit le format</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Tramage</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Mode de couleur</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>&amp;Dither</source>
        <translation>T&amp;ramage</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Mode</translation>
    </message>
    <message>
        <source>Flip &amp;horizontal</source>
        <translation>Retourner &amp;horizontalement</translation>
    </message>
    <message>
        <source>Flip &amp;vertical</source>
        <translation>Retourner &amp;verticalement</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>&amp;Inverser</translation>
    </message>
    <message>
        <source>I&amp;nterlaced</source>
        <translation>&amp;Entrelacé</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Qualité JPEG</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>Custom  1 To 99</source>
        <translation>Libre, 1 à 99</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>&amp;Qualité</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Taille du fichier</translation>
    </message>
    <message>
        <source>Fit to so many KB</source>
        <translation>Ajuster à tant de Ko</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> Ko</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Fit &amp;to</source>
        <translation>&amp;Ajuster à</translation>
    </message>
    <message>
        <source>Camera data</source>
        <translation>Données de l&apos;appareil</translation>
    </message>
    <message>
        <source>&amp;Keep camera data</source>
        <translation>&amp;Conserver les données de l&apos;appareil</translation>
    </message>
    <message>
        <source>without the pla&amp;ce</source>
        <translation>&amp;sans le lieu</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Les deux</translation>
    </message>
    <message>
        <source>Exact size and loss</source>
        <translation>Taille et perte exactes</translation>
    </message>
    <message>
        <source>The file is being written</source>
        <translation>Le fichier est en cours d&apos;écriture</translation>
    </message>
    <message numerus="yes">
        <source>%n colors</source>
        <translation>
            <numerusform>%n couleur</numerusform>
            <numerusform>%n couleurs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::FolderRun</name>
    <message>
        <source>
It ended before its time.</source>
        <translation>
Cela s&apos;est arrêté avant la fin.</translation>
    </message>
</context>
<context>
    <name>velara::FrameRequests</name>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>Il n&apos;existe pas d&apos;action « %1 ».</translation>
    </message>
    <message>
        <source> can&apos;t be read: it is no file of this computer</source>
        <translation> ne peut pas être lu : ce n&apos;est pas un fichier de cet ordinateur</translation>
    </message>
</context>
<context>
    <name>velara::MaskChoice</name>
    <message>
        <source>Mask color</source>
        <translation>Couleur de masque</translation>
    </message>
    <message>
        <source>What has this color becomes transparent</source>
        <translation>Ce qui a cette couleur devient transparent</translation>
    </message>
</context>
<context>
    <name>velara::PreviewPane</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>There is no permission to look into it.</source>
        <translation>Vous n&apos;avez pas le droit d&apos;y accéder.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Lecture ...</translation>
    </message>
    <message>
        <source>No picture is selected.</source>
        <translation>Aucune image n&apos;est choisie.</translation>
    </message>
    <message>
        <source>Not a picture.</source>
        <translation>Ce n&apos;est pas une image.</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 pixels</translation>
    </message>
</context>
<context>
    <name>velara::Recipes</name>
    <message>
        <source>Recipe (*.recipe)</source>
        <translation>Recette (*.recipe)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Nothing was done to this picture yet.</source>
        <translation>Rien n&apos;a encore été fait à cette image.</translation>
    </message>
    <message>
        <source>All of this was made by hand: there is nothing that could be done to another picture.</source>
        <translation>Tout cela a été fait à la main : rien ne peut être appliqué à une autre image.</translation>
    </message>
    <message>
        <source>%1 of %2 steps were made by hand, and can&apos;t be done to another picture:
%3</source>
        <translation>%1 étapes sur %2 ont été faites à la main et ne peuvent pas être appliquées à une autre image :
%3</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Recette</translation>
    </message>
    <message>
        <source>&amp;Leave them out</source>
        <translation>&amp;Les laisser de côté</translation>
    </message>
    <message>
        <source>The command is on the clipboard.</source>
        <translation>La commande est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>Save recipe</source>
        <translation>Enregistrer la recette</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Enregistré sous %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation>%1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>Run recipe</source>
        <translation>Exécuter la recette</translation>
    </message>
    <message>
        <source>: there is no step in it</source>
        <translation>: elle ne contient aucune étape</translation>
    </message>
    <message>
        <source>The picture is as it was. The recipe %1 ended:
%2</source>
        <translation>L&apos;image est restée telle quelle. La recette %1 s&apos;est arrêtée :
%2</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Rejouer</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message numerus="yes">
        <source>Run on %n pictures.</source>
        <translation>
            <numerusform>Exécutée sur %n image.</numerusform>
            <numerusform>Exécutée sur %n images.</numerusform>
        </translation>
    </message>
    <message>
        <source>These pictures are as they were:
</source>
        <translation>Ces images sont restées telles quelles :
</translation>
    </message>
    <message>
        <source>No other picture is open.</source>
        <translation>Aucune autre image n&apos;est ouverte.</translation>
    </message>
    <message>
        <source>What was done to %1</source>
        <translation>Ce qui a été fait à %1</translation>
    </message>
    <message>
        <source>Another file ...</source>
        <translation>Un autre fichier ...</translation>
    </message>
    <message>
        <source>Choose a recipe</source>
        <translation>Choisissez une recette</translation>
    </message>
    <message>
        <source>This recipe can&apos;t be run:
</source>
        <translation>Cette recette ne peut pas être exécutée :
</translation>
    </message>
</context>
<context>
    <name>velara::Recovery</name>
    <message>
        <source>Changed on %1</source>
        <translation>Modifié le %1</translation>
    </message>
    <message>
        <source>1 step</source>
        <translation>1 étape</translation>
    </message>
    <message>
        <source>texts that are not merged yet</source>
        <translation>textes pas encore fusionnés</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>Il n&apos;y a rien à récupérer.</translation>
    </message>
    <message>
        <source>Discard the unsaved changes of %1?
They can&apos;t be recovered after that.</source>
        <translation>Abandonner les modifications non enregistrées de %1 ?
Elles ne pourront plus être récupérées ensuite.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message numerus="yes">
        <source>%n steps</source>
        <translation>
            <numerusform>%n étape</numerusform>
            <numerusform>%n étapes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::SaneScanner</name>
    <message>
        <source>The program velara-scan is missing.</source>
        <translation>Le programme velara-scan est absent.</translation>
    </message>
    <message>
        <source>The scanner&apos;s driver has failed.</source>
        <translation>Le pilote du scanner a échoué.</translation>
    </message>
</context>
<context>
    <name>velara::SaveDialog</name>
    <message>
        <source>&quot;%1&quot; has the ending of another kind of file.</source>
        <translation>« %1 » porte l&apos;extension d&apos;un autre type de fichier.</translation>
    </message>
    <message>
        <source>Save as &quot;%1&quot;</source>
        <translation>Enregistrer comme « %1 »</translation>
    </message>
    <message>
        <source>Keep &quot;%1&quot;</source>
        <translation>Conserver « %1 »</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Voulez-vous le remplacer ?</translation>
    </message>
</context>
<context>
    <name>velara::Startup</name>
    <message>
        <source>Velara Studio is already running!</source>
        <translation>Velara Studio est déjà en cours d&apos;exécution !</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be written to.
Steps back stay in memory, as many as fit, and settings will not be kept.</source>
        <translation>Impossible d&apos;écrire dans le dossier « %1 ».
Les étapes en arrière restent en mémoire, autant qu&apos;il en tient, et les réglages ne seront pas conservés.</translation>
    </message>
</context>
<context>
    <name>velara::fAboutFacts</name>
    <message>
        <source>picture files</source>
        <translation>fichiers d&apos;images</translation>
    </message>
    <message>
        <source>GIF and palettes</source>
        <translation>GIF et palettes</translation>
    </message>
    <message>
        <source>metafiles</source>
        <translation>métafichiers</translation>
    </message>
    <message>
        <source>scanners</source>
        <translation>scanners</translation>
    </message>
    <message>
        <source>printers</source>
        <translation>imprimantes</translation>
    </message>
    <message>
        <source>vector arithmetic</source>
        <translation>calcul vectoriel</translation>
    </message>
    <message>
        <source>the cage of the decoders</source>
        <translation>la cage des décodeurs</translation>
    </message>
    <message>
        <source>icons</source>
        <translation>icônes</translation>
    </message>
    <message>
        <source>windows</source>
        <translation>fenêtres</translation>
    </message>
    <message>
        <source>&lt;b&gt;Velara Studio %1&lt;/b&gt;&lt;p&gt;Free software under the GNU General Public License, version 2 or later, without any warranty.&lt;/p&gt;&lt;p&gt;It stands on&lt;/p&gt;</source>
        <translation>&lt;b&gt;Velara Studio %1&lt;/b&gt;&lt;p&gt;Logiciel libre sous la licence publique générale GNU, version 2 ou ultérieure, sans aucune garantie.&lt;/p&gt;&lt;p&gt;Il repose sur&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Version, license and libraries</source>
        <translation>Version, licence et bibliothèques</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>velara::fAcquire</name>
    <message>
        <source>Acquire</source>
        <translation>Acquérir</translation>
    </message>
    <message>
        <source>Select S&amp;ource ...</source>
        <translation>&amp;Choisir la source ...</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>Progression de la numérisation</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>&amp;Numériser</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>No source</source>
        <translation>Aucune source</translation>
    </message>
    <message>
        <source>Looking for scanners ...</source>
        <translation>Recherche de scanners ...</translation>
    </message>
    <message>
        <source>no scanner was found</source>
        <translation>aucun scanner trouvé</translation>
    </message>
    <message>
        <source>Asking the scanner ...</source>
        <translation>Interrogation du scanner ...</translation>
    </message>
    <message>
        <source>Scanning ...</source>
        <translation>Numérisation ...</translation>
    </message>
    <message>
        <source>Scanning page %1 ...</source>
        <translation>Numérisation de la page %1 ...</translation>
    </message>
    <message>
        <source>The scanner says: </source>
        <translation>Le scanner signale : </translation>
    </message>
</context>
<context>
    <name>velara::fAssociation</name>
    <message>
        <source>File Association</source>
        <translation>Associations de fichiers</translation>
    </message>
    <message>
        <source>The picture formats that Velara Studio knows. Which program opens
a file is chosen in the settings of your desktop.</source>
        <translation>Les formats d&apos;image que Velara Studio connaît. Le programme qui ouvre
un fichier se choisit dans les réglages de votre bureau.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formats</translation>
    </message>
</context>
<context>
    <name>velara::fBed</name>
    <message>
        <source>Preview of the scanner&apos;s bed</source>
        <translation>Aperçu de la vitre du scanner</translation>
    </message>
</context>
<context>
    <name>velara::fBrowse</name>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Pictures of the folder</source>
        <translation>Images du dossier</translation>
    </message>
    <message>
        <source>Browse For Graphic Filles</source>
        <translation>Parcourir les images</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Début</translation>
    </message>
    <message>
        <source>Last folders</source>
        <translation>Derniers dossiers</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Choisie</translation>
    </message>
</context>
<context>
    <name>velara::fCanvas</name>
    <message>
        <source>Canvas size</source>
        <translation>Taille du canevas</translation>
    </message>
    <message>
        <source>Proportions</source>
        <translation>Proportions</translation>
    </message>
    <message>
        <source>Defined</source>
        <translation>Défini</translation>
    </message>
    <message>
        <source>Choose a step</source>
        <translation>Choisissez une étape</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Au milieu</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>What is Canvas Size?</source>
        <translation>Qu&apos;est-ce que la taille du canevas ?</translation>
    </message>
    <message>
        <source>The canvas is the area that the picture stands on. A larger canvas adds black room around the picture, a smaller one cuts its edges; the pixels themselves keep their size. Drag the picture, or press an arrow, to say where it stands.</source>
        <translation>Le canevas est la surface sur laquelle se trouve l&apos;image. Un canevas plus grand ajoute du noir autour de l&apos;image, un plus petit en coupe les bords ; les pixels eux-mêmes gardent leur taille. Faites glisser l&apos;image, ou appuyez sur une flèche, pour dire où elle se place.</translation>
    </message>
</context>
<context>
    <name>velara::fCanvasView</name>
    <message>
        <source>Canvas</source>
        <translation>Canevas</translation>
    </message>
    <message>
        <source>Picture on the canvas</source>
        <translation>Image sur le canevas</translation>
    </message>
</context>
<context>
    <name>velara::fCapture</name>
    <message>
        <source>Capture Screen</source>
        <translation>Capturer l&apos;écran</translation>
    </message>
    <message>
        <source>How to capture</source>
        <translation>Mode de capture</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>&amp;Capture</source>
        <translation>&amp;Capturer</translation>
    </message>
    <message>
        <source>C&amp;ustom</source>
        <translation>&amp;Personnalisé</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>The whole screen</source>
        <translation>Tout l&apos;écran</translation>
    </message>
    <message>
        <source>A rectangle of the screen</source>
        <translation>Un rectangle de l&apos;écran</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Desktop means the main screen where you go through before opening any windows</source>
        <translation>Le bureau est l&apos;écran principal que vous voyez avant d&apos;ouvrir une fenêtre</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Premier plan</translation>
    </message>
    <message>
        <source>Foreground means the Current window you are working with i.e, The Velara&apos;s Studio Environment.</source>
        <translation>Le premier plan est la fenêtre dans laquelle vous travaillez, c&apos;est-à-dire Velara Studio.</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Background means any windows behind the current active window including your Desktop. Desktop is the background if there is no other visible windows behind Velara&apos;s Studio</source>
        <translation>L&apos;arrière-plan est ce qui se trouve derrière la fenêtre active, bureau compris. C&apos;est le bureau si aucune autre fenêtre n&apos;est visible derrière Velara Studio</translation>
    </message>
    <message>
        <source>What to capture</source>
        <translation>Ce qu&apos;il faut capturer</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n seconde</numerusform>
            <numerusform>%n secondes</numerusform>
        </translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Immédiatement</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>&amp;Délai</translation>
    </message>
    <message>
        <source>With the &amp;pointer</source>
        <translation>&amp;Avec le pointeur</translation>
    </message>
</context>
<context>
    <name>velara::fCaptureRectangle</name>
    <message>
        <source>Capture Rectangle</source>
        <translation>Capturer un rectangle</translation>
    </message>
    <message>
        <source>Drag a rectangle; Esc leaves</source>
        <translation>Tracez un rectangle ; Échap pour quitter</translation>
    </message>
    <message>
        <source>Drag a rectangle; with Shift it stays, with grips</source>
        <translation>Tracez un rectangle ; avec Maj il reste, avec des poignées</translation>
    </message>
    <message>
        <source>Enter: all, or the rectangle</source>
        <translation>Entrée : tout, ou le rectangle</translation>
    </message>
    <message>
        <source>Esc: leave</source>
        <translation>Échap : quitter</translation>
    </message>
    <message>
        <source>W: the window below the pointer</source>
        <translation>W : la fenêtre sous le pointeur</translation>
    </message>
</context>
<context>
    <name>velara::fCellGrid</name>
    <message>
        <source>Colors</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Cell %1: %2</source>
        <translation>Case %1 : %2</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
</context>
<context>
    <name>velara::fColorButton</name>
    <message>
        <source>Red %1, green %2, blue %3</source>
        <translation>Rouge %1, vert %2, bleu %3</translation>
    </message>
</context>
<context>
    <name>velara::fColorDepth</name>
    <message>
        <source>2 Colors (1 Bit)</source>
        <translation>2 couleurs (1 bit)</translation>
    </message>
    <message>
        <source>16 Colors (4 Bit)</source>
        <translation>16 couleurs (4 bits)</translation>
    </message>
    <message>
        <source>256 Colors (8 Bit)</source>
        <translation>256 couleurs (8 bits)</translation>
    </message>
    <message>
        <source>(15 Bit)</source>
        <translation>(15 bits)</translation>
    </message>
    <message>
        <source>(16 Bit)</source>
        <translation>(16 bits)</translation>
    </message>
    <message>
        <source>32,000 Colors (24 Bit)</source>
        <translation>32 000 couleurs (24 bits)</translation>
    </message>
    <message>
        <source>64,000 Colors (24 Bit)</source>
        <translation>64 000 couleurs (24 bits)</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Optimized</source>
        <translation>Optimisée</translation>
    </message>
    <message>
        <source>Image Color Depth</source>
        <translation>Profondeur de couleur de l&apos;image</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Select an option</source>
        <translation>Choisissez une option</translation>
    </message>
    <message>
        <source>Color depth</source>
        <translation>Profondeur de couleur</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Full size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>1/%1 of the size</source>
        <translation>1/%1 de la taille</translation>
    </message>
    <message>
        <source>Optimized to</source>
        <translation>Optimisée en</translation>
    </message>
    <message>
        <source>Send the Optimized Image to </source>
        <translation>Envoyer l&apos;image optimisée vers </translation>
    </message>
    <message>
        <source>Optimized Saver </source>
        <translation>Enregistrement optimisé </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Zoom: %1</source>
        <translation>Zoom : %1</translation>
    </message>
</context>
<context>
    <name>velara::fColourCell</name>
    <message>
        <source>Red %1, green %2, blue %3</source>
        <translation>Rouge %1, vert %2, bleu %3</translation>
    </message>
</context>
<context>
    <name>velara::fDisplay</name>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>%1, %2: red %3, green %4, blue %5</source>
        <translation>%1, %2 : rouge %3, vert %4, bleu %5</translation>
    </message>
</context>
<context>
    <name>velara::fEffectsPage</name>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Apply the effect</source>
        <translation>Appliquer l&apos;effet</translation>
    </message>
    <message>
        <source>Apply the file as a texture</source>
        <translation>Appliquer le fichier comme texture</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>%1: a double click applies it</source>
        <translation>%1 : un double clic l&apos;applique</translation>
    </message>
    <message>
        <source>Effects, up and down</source>
        <translation>Effets, haut et bas</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>A&amp;mount</source>
        <translation>&amp;Quantité</translation>
    </message>
    <message>
        <source>Texture files</source>
        <translation>Fichiers de texture</translation>
    </message>
    <message>
        <source>Fol&amp;der...</source>
        <translation>&amp;Dossier...</translation>
    </message>
    <message>
        <source>Choose the folder of the texture files</source>
        <translation>Choisissez le dossier des fichiers de texture</translation>
    </message>
    <message>
        <source>No texture files in %1</source>
        <translation>Aucun fichier de texture dans %1</translation>
    </message>
    <message>
        <source>Texture files of %1</source>
        <translation>Fichiers de texture de %1</translation>
    </message>
    <message>
        <source>There is no picture open.</source>
        <translation>Aucune image n&apos;est ouverte.</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Texture</translation>
    </message>
    <message>
        <source>%1 can&apos;t be used as a texture: %2</source>
        <translation>%1 ne peut pas servir de texture : %2</translation>
    </message>
</context>
<context>
    <name>velara::fFilter</name>
    <message>
        <source>Working. Esc ends it.</source>
        <translation>Travail en cours. Échap l&apos;interrompt.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
    <message>
        <source>%1 color</source>
        <translation>Couleur %1</translation>
    </message>
    <message>
        <source>Banks</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>%1 comes from</source>
        <translation>%1 provient de</translation>
    </message>
    <message>
        <source>%1 comes from %2</source>
        <translation>%1 provient de %2</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>Invert %1</source>
        <translation>Inverser %1</translation>
    </message>
    <message>
        <source>Kill</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Kill %1</source>
        <translation>Supprimer %1</translation>
    </message>
    <message>
        <source>Glass</source>
        <translation>Verre</translation>
    </message>
    <message>
        <source>%1 glass</source>
        <translation>Verre %1</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Force</translation>
    </message>
    <message>
        <source>Curtain Effects</source>
        <translation>Effets de rideau</translation>
    </message>
    <message>
        <source>%1 curtain</source>
        <translation>Rideau %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Real Time</source>
        <translation>Temps réel</translation>
    </message>
    <message>
        <source>Runs the filter on the picture and closes</source>
        <translation>Applique le filtre à l&apos;image et ferme</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Before: click to place the center</source>
        <translation>Avant : cliquez pour placer le centre</translation>
    </message>
    <message>
        <source>Before: click to pick a color</source>
        <translation>Avant : cliquez pour prélever une couleur</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>After, pixel for pixel</source>
        <translation>Après, pixel pour pixel</translation>
    </message>
    <message>
        <source>Drag it, or click in a picture beside it, to see another part</source>
        <translation>Faites-le glisser, ou cliquez dans une image à côté, pour voir une autre partie</translation>
    </message>
</context>
<context>
    <name>velara::fFolderRun</name>
    <message>
        <source>Run on a Folder</source>
        <translation>Exécuter sur un dossier</translation>
    </message>
    <message>
        <source>Add a picture</source>
        <translation>Ajouter une image</translation>
    </message>
    <message>
        <source>Add a folder of pictures</source>
        <translation>Ajouter un dossier d&apos;images</translation>
    </message>
    <message>
        <source>-done</source>
        <translation>-fait</translation>
    </message>
    <message>
        <source>Where the new files go</source>
        <translation>Où vont les nouveaux fichiers</translation>
    </message>
    <message>
        <source>Go &amp;on</source>
        <translation>&amp;Continuer</translation>
    </message>
    <message>
        <source>Pau&amp;se</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Every original is replaced by its result. They can&apos;t be brought back.</source>
        <translation>Chaque original est remplacé par son résultat. Ils ne pourront pas être retrouvés.</translation>
    </message>
    <message>
        <source>&amp;Replace the originals</source>
        <translation>&amp;Remplacer les originaux</translation>
    </message>
    <message>
        <source>%1 of about %2</source>
        <translation>%1 sur environ %2</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 terminées</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1 ignorées</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 en échec</translation>
    </message>
    <message>
        <source>%1 a minute</source>
        <translation>%1 par minute</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 restantes</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pause</translation>
    </message>
    <message>
        <source>%1 can&apos;t be started: %2</source>
        <translation>%1 ne peut pas être lancé : %2</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>Journal : %1</translation>
    </message>
    <message>
        <source>It is still at work.</source>
        <translation>Le travail est encore en cours.</translation>
    </message>
    <message>
        <source>&amp;Stop it and close</source>
        <translation>&amp;L&apos;arrêter et fermer</translation>
    </message>
    <message>
        <source>Leave it, and skip the picture</source>
        <translation>Le laisser, et ignorer l&apos;image</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Le remplacer</translation>
    </message>
    <message>
        <source>Add a number to the new name</source>
        <translation>Ajouter un numéro au nouveau nom</translation>
    </message>
    <message>
        <source>Replace it if it is older than the picture</source>
        <translation>Le remplacer s&apos;il est plus ancien que l&apos;image</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Recette</translation>
    </message>
    <message>
        <source>R&amp;ecipe</source>
        <translation>&amp;Recette</translation>
    </message>
    <message>
        <source>Pictures and folders</source>
        <translation>Images et dossiers</translation>
    </message>
    <message>
        <source>with the folders &amp;below</source>
        <translation>&amp;avec les sous-dossiers</translation>
    </message>
    <message>
        <source>With the folders below</source>
        <translation>Avec les sous-dossiers</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>R&amp;etirer</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>&amp;Picture ...</source>
        <translation>&amp;Image ...</translation>
    </message>
    <message>
        <source>&amp;Folder ...</source>
        <translation>&amp;Dossier ...</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Pict&amp;ures</source>
        <translation>I&amp;mages</translation>
    </message>
    <message>
        <source>Target folder</source>
        <translation>Dossier cible</translation>
    </message>
    <message>
        <source>F&amp;older ...</source>
        <translation>D&amp;ossier ...</translation>
    </message>
    <message>
        <source>Choose the target folder</source>
        <translation>Choisissez le dossier cible</translation>
    </message>
    <message>
        <source>o&amp;ver the originals, which are lost</source>
        <translation>par-dessus &amp;les originaux, qui sont perdus</translation>
    </message>
    <message>
        <source>Over the originals, which are lost</source>
        <translation>Par-dessus les originaux, qui sont perdus</translation>
    </message>
    <message>
        <source>Names of the new files</source>
        <translation>Noms des nouveaux fichiers</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Each as it is</source>
        <translation>Chacune telle quelle</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Where a file has the name already</source>
        <translation>Si un fichier porte déjà ce nom</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>&amp;Qualité</translation>
    </message>
    <message>
        <source>&amp;Target</source>
        <translation>Ci&amp;ble</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Noms</translation>
    </message>
    <message>
        <source>Form&amp;at</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>E&amp;xisting file</source>
        <translation>Fic&amp;hier existant</translation>
    </message>
    <message>
        <source>Pictures done</source>
        <translation>Images traitées</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Pictures that failed; Enter or a double click opens one</source>
        <translation>Images en échec ; Entrée ou un double clic en ouvre une</translation>
    </message>
    <message>
        <source>A double click opens the picture</source>
        <translation>Un double clic ouvre l&apos;image</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>E&amp;xécuter</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Cancel or close</source>
        <translation>Annuler ou fermer</translation>
    </message>
    <message>
        <source>Pictures that fa&amp;iled</source>
        <translation>Ima&amp;ges en échec</translation>
    </message>
    <message>
        <source>{name}  the picture&apos;s own name
{ext}  the ending of its format
{n:04}  its number, with four digits
{dir}  its folder below the one that was chosen
{width}, {height}  its size in pixels
Such as {name}-web.{ext}</source>
        <translation>{name}  le nom de l&apos;image
{ext}  l&apos;extension de son format
{n:04}  son numéro, sur quatre chiffres
{dir}  son dossier sous celui qui a été choisi
{width}, {height}  sa taille en pixels
Par exemple {name}-web.{ext}</translation>
    </message>
</context>
<context>
    <name>velara::fGeometry</name>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation>Taille minimale : 2 x 2</translation>
    </message>
    <message>
        <source>Maximum size: 256 megapixels</source>
        <translation>Taille maximale : 256 mégapixels</translation>
    </message>
</context>
<context>
    <name>velara::fHelp</name>
    <message>
        <source>What to do, and the keys for it</source>
        <translation>Ce qu&apos;il faut faire, et les touches pour cela</translation>
    </message>
    <message>
        <source>Move the picture in its window</source>
        <translation>Déplacer l&apos;image dans sa fenêtre</translation>
    </message>
    <message>
        <source>Middle button, or the hand (H)</source>
        <translation>Bouton du milieu, ou la main (H)</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>Défiler de haut en bas</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Molette</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>Défiler sur le côté</translation>
    </message>
    <message>
        <source>Shift + wheel</source>
        <translation>Maj + molette</translation>
    </message>
    <message>
        <source>Zoom about the pointer</source>
        <translation>Zoomer autour du pointeur</translation>
    </message>
    <message>
        <source>Ctrl + wheel</source>
        <translation>Ctrl + molette</translation>
    </message>
    <message>
        <source>Drop what is under way</source>
        <translation>Abandonner ce qui est en cours</translation>
    </message>
    <message>
        <source>Esc, or the right button</source>
        <translation>Échap, ou le bouton droit</translation>
    </message>
    <message>
        <source>Draw without a mouse: move a crosshair by a pixel, or ten</source>
        <translation>Dessiner sans souris : déplacer un réticule d&apos;un pixel, ou de dix</translation>
    </message>
    <message>
        <source>Arrow keys, with Shift</source>
        <translation>Flèches, avec Maj</translation>
    </message>
    <message>
        <source>Press at the crosshair, and release</source>
        <translation>Appuyer au réticule, et relâcher</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Fix a text, a paste or moved pixels, and go on</source>
        <translation>Fixer un texte, un collage ou des pixels déplacés, et continuer</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Corner of a polygon</source>
        <translation>Sommet d&apos;un polygone</translation>
    </message>
    <message>
        <source>Click, or Space while dragging</source>
        <translation>Clic, ou Espace pendant le glissement</translation>
    </message>
    <message>
        <source>Close a polygon</source>
        <translation>Fermer un polygone</translation>
    </message>
    <message>
        <source>Enter, or a double click</source>
        <translation>Entrée, ou un double clic</translation>
    </message>
    <message>
        <source>To the tools and their settings, and back</source>
        <translation>Vers les outils et leurs réglages, et retour</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Ce qu&apos;il faut faire</translation>
    </message>
    <message>
        <source>Mouse and keys</source>
        <translation>Souris et touches</translation>
    </message>
    <message>
        <source>On a picture</source>
        <translation>Sur une image</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menus</translation>
    </message>
    <message>
        <source>Keys and Mouse</source>
        <translation>Touches et souris</translation>
    </message>
</context>
<context>
    <name>velara::fHexBox</name>
    <message>
        <source>Color code</source>
        <translation>Code de couleur</translation>
    </message>
    <message>
        <source>#rrggbb, #rgb or a name such as teal; Enter takes it</source>
        <translation>#rrggbb, #rgb ou un nom tel que teal ; Entrée valide</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color. Enter it as #rrggbb, as #rgb or by its name.</source>
        <translation>« %1 » n&apos;est pas une couleur. Saisissez-la sous la forme #rrggbb, #rgb ou par son nom.</translation>
    </message>
</context>
<context>
    <name>velara::fHistory</name>
    <message>
        <source>Steps, oldest first</source>
        <translation>Étapes, de la plus ancienne à la plus récente</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Au démarrage</translation>
    </message>
    <message>
        <source>A change</source>
        <translation>Une modification</translation>
    </message>
    <message>
        <source>painted by hand</source>
        <translation>peint à la main</translation>
    </message>
    <message>
        <source>
in a selection</source>
        <translation>
dans une sélection</translation>
    </message>
    <message>
        <source>
This step is not kept any more.</source>
        <translation>
Cette étape n&apos;est plus conservée.</translation>
    </message>
    <message>
        <source>All steps</source>
        <translation>Toutes les étapes</translation>
    </message>
    <message>
        <source>From this step on</source>
        <translation>À partir de cette étape</translation>
    </message>
    <message>
        <source>&amp;Copy as command</source>
        <translation>&amp;Copier comme commande</translation>
    </message>
    <message>
        <source>&amp;Save recipe ...</source>
        <translation>&amp;Enregistrer la recette ...</translation>
    </message>
    <message>
        <source>&amp;Run from here on the other open pictures</source>
        <translation>&amp;Rejouer à partir d&apos;ici sur les autres images ouvertes</translation>
    </message>
</context>
<context>
    <name>velara::fIcon</name>
    <message>
        <source>Extract Icon</source>
        <translation>Extraire une icône</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
</context>
<context>
    <name>velara::fIconBar</name>
    <message>
        <source>What is in the frame, magnified</source>
        <translation>Le contenu du cadre, agrandi</translation>
    </message>
    <message>
        <source>Icon Maker</source>
        <translation>Créateur d&apos;icônes</translation>
    </message>
    <message>
        <source>Drag the frame over the picture.
Arrow keys move it by a pixel.</source>
        <translation>Faites glisser le cadre sur l&apos;image.
Les flèches le déplacent d&apos;un pixel.</translation>
    </message>
    <message>
        <source>Icons taken</source>
        <translation>Icônes prises</translation>
    </message>
    <message>
        <source>Icons taken:</source>
        <translation>Icônes prises :</translation>
    </message>
    <message>
        <source>Size of the icon: + and -</source>
        <translation>Taille de l&apos;icône : + et -</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Prendre</translation>
    </message>
    <message>
        <source>Take the icon: Enter</source>
        <translation>Prendre l&apos;icône : Entrée</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Back to the icon extractor: Esc</source>
        <translation>Retour à l&apos;extracteur d&apos;icônes : Échap</translation>
    </message>
</context>
<context>
    <name>velara::fIconBrowse</name>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Icon Extractor: Select Folder</source>
        <translation>Extracteur d&apos;icônes : choisir le dossier</translation>
    </message>
    <message>
        <source>The chosen folder</source>
        <translation>Le dossier choisi</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
</context>
<context>
    <name>velara::fIconMaker</name>
    <message>
        <source>Icon Maker</source>
        <translation>Créateur d&apos;icônes</translation>
    </message>
    <message>
        <source>Drag the frame of the icon; Enter takes, Esc closes</source>
        <translation>Faites glisser le cadre de l&apos;icône ; Entrée prend, Échap ferme</translation>
    </message>
</context>
<context>
    <name>velara::fIconPicture</name>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>16 to 256 in one &amp;file</source>
        <translation>16 à 256 &amp;dans un seul fichier</translation>
    </message>
    <message>
        <source>Select Required Options</source>
        <translation>Choisissez les options voulues</translation>
    </message>
    <message>
        <source>Use &amp;Mask Color</source>
        <translation>&amp;Utiliser la couleur de masque</translation>
    </message>
    <message>
        <source>Icon Preview</source>
        <translation>Aperçu de l&apos;icône</translation>
    </message>
    <message>
        <source>&amp;Save As</source>
        <translation>&amp;Enregistrer sous</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Largeur</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Hauteur</translation>
    </message>
    <message>
        <source>A click takes the mask color from here</source>
        <translation>Un clic prend ici la couleur de masque</translation>
    </message>
    <message>
        <source>There is no picture open.</source>
        <translation>Aucune image n&apos;est ouverte.</translation>
    </message>
    <message>
        <source>Width and height are whole numbers from 1 to %1.</source>
        <translation>La largeur et la hauteur sont des nombres entiers de 1 à %1.</translation>
    </message>
    <message>
        <source>%1 times as large</source>
        <translation>%1 fois plus grand</translation>
    </message>
    <message>
        <source>Save Icon as</source>
        <translation>Enregistrer l&apos;icône sous</translation>
    </message>
    <message>
        <source>Icon File</source>
        <translation>Fichier d&apos;icône</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation>%1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Enregistré : %1</translation>
    </message>
</context>
<context>
    <name>velara::fIconSeries</name>
    <message>
        <source>Custom Icon Extractor</source>
        <translation>Extracteur d&apos;icônes libre</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Use Mas&amp;k Color</source>
        <translation>Utiliser la &amp;couleur de masque</translation>
    </message>
    <message>
        <source>What to capture</source>
        <translation>Ce qu&apos;il faut capturer</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Premier plan</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>L&amp;ancer</translation>
    </message>
    <message>
        <source>Captures the screen and cuts icons out of it</source>
        <translation>Capture l&apos;écran et y découpe des icônes</translation>
    </message>
    <message>
        <source>Icons cut out</source>
        <translation>Icônes découpées</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icône</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>&amp;Extract Icons of the Selected Images to</source>
        <translation>E&amp;xtraire les icônes des images choisies vers</translation>
    </message>
    <message>
        <source>Folder of the icons</source>
        <translation>Dossier des icônes</translation>
    </message>
    <message>
        <source>....</source>
        <translation>....</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>E&amp;nregistrer</translation>
    </message>
    <message>
        <source>Select the folder</source>
        <translation>Choisissez le dossier</translation>
    </message>
    <message>
        <source>No Images to extract!</source>
        <translation>Aucune image à extraire !</translation>
    </message>
    <message>
        <source>Folder does not Exists! Please Enter a valid folder path</source>
        <translation>Le dossier n&apos;existe pas ! Veuillez saisir un chemin de dossier valable</translation>
    </message>
    <message numerus="yes">
        <source>%n icon Files Saved!</source>
        <translation>
            <numerusform>%n fichier d&apos;icône enregistré !</numerusform>
            <numerusform>%n fichiers d&apos;icônes enregistrés !</numerusform>
        </translation>
    </message>
    <message>
        <source>Not written: %1</source>
        <translation>Non écrit : %1</translation>
    </message>
    <message numerus="yes">
        <source> and %n more</source>
        <translation>
            <numerusform> et %n de plus</numerusform>
            <numerusform> et %n de plus</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::fImage</name>
    <message>
        <source>Picture window</source>
        <translation>Fenêtre d&apos;image</translation>
    </message>
    <message>
        <source>Horizontal scroll bar</source>
        <translation>Barre de défilement horizontale</translation>
    </message>
    <message>
        <source>Vertical scroll bar</source>
        <translation>Barre de défilement verticale</translation>
    </message>
    <message>
        <source>This image has changed.
Do you want to save it ?</source>
        <translation>Cette image a été modifiée.
Voulez-vous l&apos;enregistrer ?</translation>
    </message>
</context>
<context>
    <name>velara::fLayerCanvas</name>
    <message>
        <source>Picture with its texts</source>
        <translation>Image avec ses textes</translation>
    </message>
    <message>
        <source>Text %1</source>
        <translation>Texte %1</translation>
    </message>
</context>
<context>
    <name>velara::fLayerList</name>
    <message>
        <source>Texts</source>
        <translation>Textes</translation>
    </message>
    <message>
        <source>Texts, up and down</source>
        <translation>Textes, haut et bas</translation>
    </message>
    <message>
        <source>Empty text</source>
        <translation>Texte vide</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Afficher %1</translation>
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
        <translation>Gras</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Souligné</translation>
    </message>
    <message>
        <source>Strike out</source>
        <translation>Barré</translation>
    </message>
    <message>
        <source>Save for Web</source>
        <translation>Enregistrer pour le Web</translation>
    </message>
    <message>
        <source>Color Depth</source>
        <translation>Profondeur de couleur</translation>
    </message>
    <message>
        <source>Picture with its texts</source>
        <translation>Image avec ses textes</translation>
    </message>
    <message>
        <source>Color of the text</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>Apply Text</source>
        <translation>Appliquer le texte</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>New text</source>
        <translation>Nouveau texte</translation>
    </message>
    <message>
        <source>Delete text</source>
        <translation>Supprimer le texte</translation>
    </message>
    <message>
        <source>Send Optimized Image To</source>
        <translation>Envoyer l&apos;image optimisée vers</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Zoom to fit</source>
        <translation>Ajuster à la fenêtre</translation>
    </message>
    <message>
        <source>Type. A drag marks letters, at the frame it moves the text. Esc ends typing.</source>
        <translation>Tapez. Faire glisser marque des lettres, sur le cadre cela déplace le texte. Échap termine la saisie.</translation>
    </message>
    <message>
        <source>Drag the text or its grips. A click or Enter puts the caret into it.</source>
        <translation>Faites glisser le texte ou ses poignées. Un clic ou Entrée y place le curseur.</translation>
    </message>
    <message>
        <source>Click on the picture where a text shall stand, and type.</source>
        <translation>Cliquez dans l&apos;image là où le texte doit se placer, puis tapez.</translation>
    </message>
    <message>
        <source>
The texts are not in the image yet.
Do you want to merge them ?</source>
        <translation>
Les textes ne sont pas encore dans l&apos;image.
Voulez-vous les fusionner ?</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Bring this picture to the front first.</source>
        <translation>Amenez d&apos;abord cette image au premier plan.</translation>
    </message>
</context>
<context>
    <name>velara::fMain</name>
    <message>
        <source>First color</source>
        <translation>Première couleur</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>Deuxième couleur</translation>
    </message>
    <message>
        <source>There is no picture to work on: open one first, or make a new one.</source>
        <translation>Il n&apos;y a pas d&apos;image à modifier : ouvrez-en une, ou créez-en une nouvelle.</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Outil</translation>
    </message>
    <message>
        <source>
There is no picture in it.</source>
        <translation>
Il ne contient aucune image.</translation>
    </message>
    <message>
        <source>
&quot;.%1&quot; is no format that is written.</source>
        <translation>
« .%1 » n&apos;est pas un format que l&apos;on peut écrire.</translation>
    </message>
    <message>
        <source>Unexpected error loading image</source>
        <translation>Erreur inattendue au chargement de l&apos;image</translation>
    </message>
    <message>
        <source>This file is not there any more:
</source>
        <translation>Ce fichier a disparu :
</translation>
    </message>
    <message>
        <source>These files are not there any more:
</source>
        <translation>Ces fichiers ont disparu :
</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>Lecture de %1 ...</translation>
    </message>
    <message>
        <source> can&apos;t be read as a picture.</source>
        <translation> ne peut pas être lu comme image.</translation>
    </message>
    <message>
        <source> was not read</source>
        <translation> n&apos;a pas été lu</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vide</translation>
    </message>
    <message>
        <source>No picture has changed.</source>
        <translation>Aucune image n&apos;a changé.</translation>
    </message>
    <message>
        <source>These are written to their own files:
</source>
        <translation>Celles-ci sont écrites dans leurs propres fichiers :
</translation>
    </message>
    <message>
        <source>These need a name, for which you are asked:
</source>
        <translation>Celles-ci ont besoin d&apos;un nom, qui vous sera demandé :
</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Tout enregistrer</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>&amp;Keep camera data</source>
        <translation>&amp;Conserver les données de l&apos;appareil</translation>
    </message>
    <message>
        <source>without the &amp;place</source>
        <translation>&amp;sans le lieu</translation>
    </message>
    <message>
        <source>Saving %1 ... Esc ends it</source>
        <translation>Enregistrement de %1 ... Échap l&apos;interrompt</translation>
    </message>
    <message>
        <source>%1 is not saved.</source>
        <translation>%1 n&apos;est pas enregistrée.</translation>
    </message>
    <message>
        <source>Unexpected error saving image</source>
        <translation>Erreur inattendue à l&apos;enregistrement de l&apos;image</translation>
    </message>
    <message>
        <source>Of a kind that is not read: %1</source>
        <translation>D&apos;un type qui n&apos;est pas lu : %1</translation>
    </message>
    <message>
        <source>It is %1 picture; saved under this name it would become %2 picture.</source>
        <translation>C&apos;est une image %1 ; enregistrée sous ce nom, elle deviendrait une image %2.</translation>
    </message>
    <message>
        <source>There is no page behind this one.</source>
        <translation>Il n&apos;y a pas de page après celle-ci.</translation>
    </message>
    <message>
        <source>There is no page before this one.</source>
        <translation>Il n&apos;y a pas de page avant celle-ci.</translation>
    </message>
    <message>
        <source>
Do you want to save it under another name ?</source>
        <translation>
Voulez-vous l&apos;enregistrer sous un autre nom ?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>E&amp;nregistrer sous ...</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>Éc&amp;raser</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Rien de sélectionné</translation>
    </message>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation>Taille minimale : 2 x 2</translation>
    </message>
    <message>
        <source>Apply Text</source>
        <translation>Appliquer le texte</translation>
    </message>
    <message>
        <source>the texts of another picture wait for OK or Exit</source>
        <translation>les textes d&apos;une autre image attendent OK ou Quitter</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>A step could not be kept: this is the last one that stands.</source>
        <translation>Une étape n&apos;a pas pu être conservée : celle-ci est la dernière qui reste.</translation>
    </message>
    <message>
        <source>A step that could not be kept was passed over.</source>
        <translation>Une étape qui n&apos;a pas pu être conservée a été sautée.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>After a crash this picture could not be recovered: %1.</source>
        <translation>Après un plantage, cette image n&apos;a pas pu être récupérée : %1.</translation>
    </message>
    <message>
        <source>This step can&apos;t be undone: %1.</source>
        <translation>Cette étape ne peut pas être annulée : %1.</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation>Taille du canevas</translation>
    </message>
    <message>
        <source>Error getting subkey value.</source>
        <translation>Erreur à la lecture de la valeur de la sous-clé.</translation>
    </message>
    <message>
        <source>Error Setting subkey value.</source>
        <translation>Erreur à l&apos;écriture de la valeur de la sous-clé.</translation>
    </message>
    <message numerus="yes">
        <source>It has %n pages; this one alone would be left of it.</source>
        <translation>
            <numerusform>Le fichier a %n page ; il n&apos;en resterait que celle-ci.</numerusform>
            <numerusform>Le fichier a %n pages ; il n&apos;en resterait que celle-ci.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
It has %n pages; this one alone would be left of it.</source>
        <translation>
            <numerusform>
Le fichier a %n page ; il n&apos;en resterait que celle-ci.</numerusform>
            <numerusform>
Le fichier a %n pages ; il n&apos;en resterait que celle-ci.</numerusform>
        </translation>
    </message>
    <message>
        <source>The program that reads pictures (velara-decode) was not found. Is the package being removed? What is open can be changed and saved.</source>
        <translation>Le programme qui lit les images (velara-decode) est introuvable. Le paquet est-il en cours de suppression ? Ce qui est ouvert peut être modifié et enregistré.</translation>
    </message>
</context>
<context>
    <name>velara::fManual</name>
    <message>
        <source>Page of the manual</source>
        <translation>Page du manuel</translation>
    </message>
    <message>
        <source>Pages of the manual</source>
        <translation>Pages du manuel</translation>
    </message>
    <message>
        <source>Words to look for in the manual</source>
        <translation>Mots à chercher dans le manuel</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Words to look for</source>
        <translation>Mots à chercher</translation>
    </message>
</context>
<context>
    <name>velara::fNew</name>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Standard sizes</source>
        <translation>Tailles courantes</translation>
    </message>
    <message>
        <source>&lt;Custom&gt;</source>
        <translation>&lt;Personnalisé&gt;</translation>
    </message>
    <message>
        <source>Custom:</source>
        <translation>Personnalisé :</translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation>&amp;Garder les proportions</translation>
    </message>
</context>
<context>
    <name>velara::fOrientation</name>
    <message>
        <source>Unchanged</source>
        <translation>Inchangé</translation>
    </message>
    <message>
        <source>90º left</source>
        <translation>90º à gauche</translation>
    </message>
    <message>
        <source>90º right</source>
        <translation>90º à droite</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Canvas orientation</source>
        <translation>Orientation du canevas</translation>
    </message>
    <message>
        <source>Flip &amp;vertical</source>
        <translation>&amp;Retourner verticalement</translation>
    </message>
    <message>
        <source>Flip vertical</source>
        <translation>Retourner verticalement</translation>
    </message>
    <message>
        <source>Flip &amp;horizontal</source>
        <translation>Retourner &amp;horizontalement</translation>
    </message>
    <message>
        <source>Flip horizontal</source>
        <translation>Retourner horizontalement</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Flip image</source>
        <translation>Retourner l&apos;image</translation>
    </message>
</context>
<context>
    <name>velara::fOverlay</name>
    <message>
        <source>Image Merging</source>
        <translation>Fusion d&apos;images</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Select image to overlay:</source>
        <translation>Choisissez l&apos;image à superposer :</translation>
    </message>
    <message>
        <source>Image to overlay</source>
        <translation>Image à superposer</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>&amp;Tiled</source>
        <translation>&amp;Mosaïque</translation>
    </message>
    <message>
        <source>&amp;Mask color</source>
        <translation>&amp;Couleur de masque</translation>
    </message>
    <message>
        <source>Mask color</source>
        <translation>Couleur de masque</translation>
    </message>
    <message>
        <source>Create &amp;new image</source>
        <translation>Créer &amp;une nouvelle image</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Left offset</source>
        <translation>Décalage à gauche</translation>
    </message>
    <message>
        <source>Top offset</source>
        <translation>Décalage en haut</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>Plus de %1</translation>
    </message>
    <message>
        <source>No picture is open.</source>
        <translation>Aucune image n&apos;est ouverte.</translation>
    </message>
    <message>
        <source>Not merged: %1</source>
        <translation>Non fusionné : %1</translation>
    </message>
</context>
<context>
    <name>velara::fOwnSize</name>
    <message>
        <source>&amp;Own size</source>
        <translation>&amp;Taille propre</translation>
    </message>
    <message>
        <source>Printed width</source>
        <translation>Largeur imprimée</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Printed height</source>
        <translation>Hauteur imprimée</translation>
    </message>
    <message>
        <source>Printed size in percent</source>
        <translation>Taille imprimée en pour cent</translation>
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
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Saturation and lightness</source>
        <translation>Saturation et luminosité</translation>
    </message>
    <message>
        <source>Click to pick and to store in the cell; double click for the large picker</source>
        <translation>Clic pour prélever et ranger dans la case ; double clic pour le grand sélecteur</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Current pick</source>
        <translation>Choix actuel</translation>
    </message>
    <message>
        <source>First color</source>
        <translation>Première couleur</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>Deuxième couleur</translation>
    </message>
    <message>
        <source>Swap the colors</source>
        <translation>Échanger les couleurs</translation>
    </message>
    <message>
        <source>&amp;Link</source>
        <translation>&amp;Lier</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lier</translation>
    </message>
    <message>
        <source>Link with current color</source>
        <translation>Lier à la couleur actuelle</translation>
    </message>
    <message>
        <source>Cell %1</source>
        <translation>Case %1</translation>
    </message>
    <message>
        <source>Preset colors</source>
        <translation>Couleurs prédéfinies</translation>
    </message>
    <message>
        <source>%1 degrees</source>
        <translation>%1 degrés</translation>
    </message>
</context>
<context>
    <name>velara::fPaste</name>
    <message>
        <source>Picture of the clip</source>
        <translation>Image de l&apos;extrait</translation>
    </message>
    <message>
        <source>Clip History</source>
        <translation>Extraits</translation>
    </message>
    <message>
        <source>Clips, oldest first</source>
        <translation>Extraits, du plus ancien au plus récent</translation>
    </message>
    <message>
        <source>Enter pastes the clip</source>
        <translation>Entrée colle l&apos;extrait</translation>
    </message>
    <message>
        <source>Scroll the clips</source>
        <translation>Faire défiler les extraits</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>Extrait %1</translation>
    </message>
    <message>
        <source>Opaque &amp;Intensity</source>
        <translation>&amp;Intensité opaque</translation>
    </message>
    <message>
        <source>Opaque Intensity</source>
        <translation>Intensité opaque</translation>
    </message>
    <message>
        <source>Clip History: 
%1</source>
        <translation>Historique des extraits : 
%1</translation>
    </message>
    <message>
        <source>Minimum cut size: 2 x 2</source>
        <translation>Taille minimale à couper : 2 x 2</translation>
    </message>
    <message>
        <source>Minimum copy size: 2 x 2</source>
        <translation>Taille minimale à copier : 2 x 2</translation>
    </message>
</context>
<context>
    <name>velara::fPicker</name>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
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
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Color Box</source>
        <translation>Boîte de couleurs</translation>
    </message>
    <message>
        <source>Enter an Integer Value Between 0 and %1</source>
        <translation>Saisissez un nombre entier entre 0 et %1</translation>
    </message>
    <message>
        <source>&amp;Picker</source>
        <translation>&amp;Sélecteur</translation>
    </message>
    <message>
        <source>&amp;Preset</source>
        <translation>&amp;Préréglage</translation>
    </message>
    <message>
        <source>Color field</source>
        <translation>Champ de couleurs</translation>
    </message>
    <message>
        <source>Color strip</source>
        <translation>Bande de couleurs</translation>
    </message>
    <message>
        <source>%1 on the strip</source>
        <translation>%1 sur la bande</translation>
    </message>
    <message>
        <source>Color model</source>
        <translation>Modèle de couleur</translation>
    </message>
    <message>
        <source>He&amp;x</source>
        <translation>&amp;Hexa</translation>
    </message>
    <message>
        <source>Preset colors</source>
        <translation>Couleurs prédéfinies</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Personnalisé...</translation>
    </message>
    <message>
        <source>Safe Palette (216)</source>
        <translation>Palette sûre (216)</translation>
    </message>
    <message>
        <source>Put the color into the selected cell</source>
        <translation>Mettre la couleur dans la case choisie</translation>
    </message>
    <message>
        <source>Color to put into a cell</source>
        <translation>Couleur à mettre dans une case</translation>
    </message>
    <message>
        <source>Select a cell, then &lt;&lt; keeps
the color in your list.</source>
        <translation>Choisissez une case, puis &lt;&lt;
garde la couleur dans votre liste.</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>Couleur choisie</translation>
    </message>
    <message>
        <source>Color before</source>
        <translation>Couleur précédente</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Color under the pointer</source>
        <translation>Couleur sous le pointeur</translation>
    </message>
    <message>
        <source>Recent colors</source>
        <translation>Couleurs récentes</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Recent color %1</source>
        <translation>Couleur récente %1</translation>
    </message>
    <message>
        <source>O&amp;K</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>velara::fPicturePage</name>
    <message>
        <source>%1, left and right</source>
        <translation>%1, gauche et droite</translation>
    </message>
    <message>
        <source>%1, up and down</source>
        <translation>%1, haut et bas</translation>
    </message>
</context>
<context>
    <name>velara::fPreferences</name>
    <message>
        <source>&amp;Open iP maximized </source>
        <translation>&amp;Ouvrir iP agrandi </translation>
    </message>
    <message>
        <source>Open i&amp;mages maximized </source>
        <translation>Ouvrir &amp;les images agrandies </translation>
    </message>
    <message>
        <source>&amp;Preserve last folder</source>
        <translation>&amp;Conserver le dernier dossier</translation>
    </message>
    <message>
        <source>&amp;Ask to save on Close/Exit</source>
        <translation>&amp;Demander d&apos;enregistrer en fermant/quittant</translation>
    </message>
    <message>
        <source>%1: Options</source>
        <translation>%1 : options</translation>
    </message>
    <message>
        <source>Images default &amp;folder</source>
        <translation>Dossier d&apos;images &amp;par défaut</translation>
    </message>
    <message>
        <source>Images default folder</source>
        <translation>Dossier d&apos;images par défaut</translation>
    </message>
    <message>
        <source>&amp;Browse ...</source>
        <translation>P&amp;arcourir ...</translation>
    </message>
    <message>
        <source>Select Images default folder</source>
        <translation>Choisir le dossier d&apos;images par défaut</translation>
    </message>
    <message>
        <source>&amp;Convert pictures to sRGB</source>
        <translation>Convertir les &amp;images en sRGB</translation>
    </message>
    <message>
        <source>&amp;Show pictures by the screen&apos;s color profile</source>
        <translation>Afficher &amp;selon le profil de couleurs de l&apos;écran</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>Lan&amp;gue</translation>
    </message>
    <message>
        <source>from the next start on</source>
        <translation>à partir du prochain démarrage</translation>
    </message>
    <message>
        <source>Colors of the windows</source>
        <translation>Couleurs des fenêtres</translation>
    </message>
    <message>
        <source>Colors of the &amp;windows:</source>
        <translation>Couleurs des fe&amp;nêtres :</translation>
    </message>
</context>
<context>
    <name>velara::fPresetWell</name>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Window text</source>
        <translation>Texte de fenêtre</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Bouton</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Texte de bouton</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Selected text</source>
        <translation>Texte sélectionné</translation>
    </message>
    <message>
        <source>Tool tip</source>
        <translation>Infobulle</translation>
    </message>
    <message>
        <source>Tool tip text</source>
        <translation>Texte d&apos;infobulle</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lier</translation>
    </message>
    <message>
        <source>Visited link</source>
        <translation>Lien visité</translation>
    </message>
    <message>
        <source>Light edge</source>
        <translation>Bord clair</translation>
    </message>
    <message>
        <source>Pale edge</source>
        <translation>Bord pâle</translation>
    </message>
    <message>
        <source>Middle edge</source>
        <translation>Bord moyen</translation>
    </message>
    <message>
        <source>Dark edge</source>
        <translation>Bord sombre</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Ombre</translation>
    </message>
    <message>
        <source>Other rows</source>
        <translation>Autres lignes</translation>
    </message>
    <message>
        <source>Choose one of the set</source>
        <translation>Choisissez dans le jeu</translation>
    </message>
</context>
<context>
    <name>velara::fPrint</name>
    <message>
        <source>The page</source>
        <translation>La page</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Brouillon</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplaires</translation>
    </message>
    <message>
        <source>&amp;Fit to page</source>
        <translation>&amp;Ajuster à la page</translation>
    </message>
    <message>
        <source>&amp;Center image</source>
        <translation>&amp;Centrer l&apos;image</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Printing ...</source>
        <translation>Impression ...</translation>
    </message>
    <message>
        <source>Asking the printer ...</source>
        <translation>Interrogation de l&apos;imprimante ...</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>au plus %1</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>File: </source>
        <translation>Fichier : </translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Imprimer dans un fichier</translation>
    </message>
    <message>
        <source>Unable to print</source>
        <translation>Impression impossible</translation>
    </message>
    <message>
        <source>It is waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>%1 exemplaires</translation>
    </message>
</context>
<context>
    <name>velara::fPrinterBox</name>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>PDF file ...</source>
        <translation>Fichier PDF ...</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Choisissez une imprimante</translation>
    </message>
    <message>
        <source>Looking for printers ...</source>
        <translation>Recherche d&apos;imprimantes ...</translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation>Aucune imprimante trouvée</translation>
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
        <translation>&amp;Niveaux de gris</translation>
    </message>
    <message>
        <source>Printer Setup</source>
        <translation>Configuration de l&apos;imprimante</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Asking the printer ...</source>
        <translation>Interrogation de l&apos;imprimante ...</translation>
    </message>
</context>
<context>
    <name>velara::fProperties</name>
    <message>
        <source>%1 pixels (%2 megapixels)</source>
        <translation>%1 pixels (%2 mégapixels)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
</context>
<context>
    <name>velara::fRecovery</name>
    <message>
        <source>Recover Pictures</source>
        <translation>Récupérer des images</translation>
    </message>
    <message>
        <source>The program ended before the changes of these pictures were saved.</source>
        <translation>Le programme s&apos;est terminé avant l&apos;enregistrement des modifications de ces images.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>&amp;Recover All</source>
        <translation>&amp;Tout récupérer</translation>
    </message>
    <message>
        <source>&amp;Discard All ...</source>
        <translation>Tout &amp;abandonner ...</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Plus tard</translation>
    </message>
    <message>
        <source>They stay on the start page, and in the File menu</source>
        <translation>Elles restent sur la page d&apos;accueil et dans le menu Fichier</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>Discard ...</source>
        <translation>Abandonner ...</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
</context>
<context>
    <name>velara::fResolution</name>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Anti-Alias</source>
        <translation>Anticrénelage</translation>
    </message>
    <message>
        <source>File: </source>
        <translation>Fichier : </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>velara::fRgbBox</name>
    <message>
        <source>Drag up or down to change it; with Ctrl by tens</source>
        <translation>Faites glisser vers le haut ou le bas pour changer ; avec Ctrl, par dizaines</translation>
    </message>
</context>
<context>
    <name>velara::fRotate</name>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Degrés</translation>
    </message>
    <message>
        <source>&amp;Antialiasing</source>
        <translation>&amp;Anticrénelage</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>Anticrénelage</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>45 degrees more</source>
        <translation>45 degrés de plus</translation>
    </message>
    <message>
        <source>45 degrees less</source>
        <translation>45 degrés de moins</translation>
    </message>
    <message>
        <source>Canvas will be resized</source>
        <translation>Le canevas sera redimensionné</translation>
    </message>
</context>
<context>
    <name>velara::fScanSettings</name>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Aperçu</translation>
    </message>
    <message>
        <source>Whole &amp;bed</source>
        <translation>&amp;Toute la vitre</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;De</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Mode</translation>
    </message>
    <message>
        <source>&amp;Resolution (dpi)</source>
        <translation>&amp;Résolution (ppp)</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Gauche</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>&amp;Haut</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Largeur</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>Haute&amp;ur</translation>
    </message>
</context>
<context>
    <name>velara::fSearch</name>
    <message>
        <source>Find a command</source>
        <translation>Trouver une commande</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Find a Command</source>
        <translation>Trouver une commande</translation>
    </message>
    <message>
        <source>A few letters of what you want to do</source>
        <translation>Quelques lettres de ce que vous voulez faire</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>Nothing has this name.</source>
        <translation>Rien ne porte ce nom.</translation>
    </message>
    <message>
        <source> · used lately</source>
        <translation> · utilisé récemment</translation>
    </message>
</context>
<context>
    <name>velara::fSize</name>
    <message>
        <source>Image size</source>
        <translation>Taille de l&apos;image</translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation>&amp;Garder les proportions</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Pour cent</translation>
    </message>
    <message>
        <source>&amp;Anti-Alias</source>
        <translation>&amp;Anticrénelage</translation>
    </message>
    <message>
        <source>Anti-Alias</source>
        <translation>Anticrénelage</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Choose a factor</source>
        <translation>Choisissez un facteur</translation>
    </message>
    <message>
        <source>&amp;Percent</source>
        <translation>&amp;Pourcentage</translation>
    </message>
</context>
<context>
    <name>velara::fSizeFields</name>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>Garder les proportions</translation>
    </message>
</context>
<context>
    <name>velara::fSource</name>
    <message>
        <source>Select Source</source>
        <translation>Choisir la source</translation>
    </message>
    <message>
        <source>Scanners</source>
        <translation>Scanners</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Chercher à nouveau</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>C&amp;hoisir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Looking for scanners ...</source>
        <translation>Recherche de scanners ...</translation>
    </message>
    <message>
        <source>No scanner was found: </source>
        <translation>Aucun scanner trouvé : </translation>
    </message>
    <message>
        <source>No scanner was found.</source>
        <translation>Aucun scanner trouvé.</translation>
    </message>
    <message>
        <source>Scanners of this machine:</source>
        <translation>Scanners de cet ordinateur :</translation>
    </message>
    <message>
        <source>Please Verify that the system is connected to Scanner!</source>
        <translation>Veuillez vérifier que l&apos;ordinateur est relié au scanner !</translation>
    </message>
</context>
<context>
    <name>velara::fSplash</name>
    <message>
        <source>About Velara Studio</source>
        <translation>À propos de Velara Studio</translation>
    </message>
</context>
<context>
    <name>velara::fStartPage</name>
    <message>
        <source>Recent pictures</source>
        <translation>Images récentes</translation>
    </message>
    <message>
        <source>How to start</source>
        <translation>Comment démarrer</translation>
    </message>
    <message>
        <source>Open a picture to begin</source>
        <translation>Ouvrez une image pour commencer</translation>
    </message>
    <message>
        <source>Pictures may also be dropped here.</source>
        <translation>Vous pouvez aussi déposer des images ici.</translation>
    </message>
    <message>
        <source>Not saved when the program ended</source>
        <translation>Non enregistrées à la fin du programme</translation>
    </message>
    <message>
        <source>&amp;Recover ...</source>
        <translation>&amp;Récupérer ...</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation>&amp;Nouveau ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Ouvrir ...</translation>
    </message>
    <message>
        <source>From the &amp;clipboard</source>
        <translation>&amp;Depuis le presse-papiers</translation>
    </message>
</context>
<context>
    <name>velara::fStatus</name>
    <message>
        <source>Position of the pointer</source>
        <translation>Position du pointeur</translation>
    </message>
    <message>
        <source>Extent of the drag</source>
        <translation>Étendue du glissement</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Taille de l&apos;image</translation>
    </message>
    <message>
        <source>Page of the file</source>
        <translation>Page du fichier</translation>
    </message>
    <message>
        <source>Name of the picture</source>
        <translation>Nom de l&apos;image</translation>
    </message>
    <message>
        <source>Keys of what is under way</source>
        <translation>Touches de l&apos;action en cours</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Progress of the filter</source>
        <translation>Progression du filtre</translation>
    </message>
</context>
<context>
    <name>velara::fTextPage</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alignement</translation>
    </message>
    <message>
        <source>Left Justify|Centre Justify|Right Justify|Full Justify</source>
        <translation>Aligné à gauche|Centré|Aligné à droite|Justifié</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Ombre</translation>
    </message>
    <message>
        <source>Top Left|Top|Top Right|Left|No Shadow|Right|Bottom Left|Bottom|Bottom Right</source>
        <translation>En haut à gauche|En haut|En haut à droite|À gauche|Sans ombre|À droite|En bas à gauche|En bas|En bas à droite</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Souligné</translation>
    </message>
    <message>
        <source>The text is too long for this space: make the window larger.</source>
        <translation>Le texte est trop long pour cet espace : agrandissez la fenêtre.</translation>
    </message>
    <message>
        <source>The text as it is stamped</source>
        <translation>Le texte tel qu&apos;il est tamponné</translation>
    </message>
    <message>
        <source>Type the text here</source>
        <translation>Tapez le texte ici</translation>
    </message>
    <message>
        <source>&amp;Place with the mouse</source>
        <translation>&amp;Placer à la souris</translation>
    </message>
    <message>
        <source>Place with the mouse</source>
        <translation>Placer à la souris</translation>
    </message>
    <message>
        <source>Takes the text tool: press on the picture, drag, and let go where the text shall stand</source>
        <translation>Prend l&apos;outil texte : appuyez sur l&apos;image, faites glisser et relâchez là où le texte doit se placer</translation>
    </message>
    <message>
        <source>Unable to find suitable font size for text</source>
        <translation>Aucune taille de police ne convient au texte</translation>
    </message>
</context>
<context>
    <name>velara::fTexturize</name>
    <message>
        <source>Texturize</source>
        <translation>Texturer</translation>
    </message>
    <message>
        <source>The folder &quot;Textures&quot; can&apos;t be written to.</source>
        <translation>Impossible d&apos;écrire dans le dossier « Textures ».</translation>
    </message>
    <message>
        <source>Textures</source>
        <translation>Textures</translation>
    </message>
    <message>
        <source>Chosen texture</source>
        <translation>Texture choisie</translation>
    </message>
    <message>
        <source>Preview, pixel for pixel</source>
        <translation>Aperçu, pixel pour pixel</translation>
    </message>
    <message>
        <source>The texture</source>
        <translation>La texture</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>Depth </source>
        <translation>Profondeur </translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>Estampage</translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation>Gravure</translation>
    </message>
    <message>
        <source>Self-Texturized</source>
        <translation>Texturée par elle-même</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>(can&apos;t be read)</source>
        <translation>(illisible)</translation>
    </message>
    <message>
        <source>This file can&apos;t be read as a picture.</source>
        <translation>Ce fichier ne peut pas être lu comme image.</translation>
    </message>
    <message>
        <source>A relief needs a picture of at least 2 x 2 pixels.</source>
        <translation>Un relief demande une image d&apos;au moins 2 x 2 pixels.</translation>
    </message>
    <message>
        <source>A texture needs at least 2 x 2 pixels.</source>
        <translation>Une texture demande au moins 2 x 2 pixels.</translation>
    </message>
</context>
<context>
    <name>velara::fToolPane</name>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>First color</source>
        <translation>Première couleur</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>Deuxième couleur</translation>
    </message>
    <message>
        <source>Swap the colors</source>
        <translation>Échanger les couleurs</translation>
    </message>
</context>
<context>
    <name>velara::fToolTextures</name>
    <message>
        <source>Text and effects</source>
        <translation>Texte et effets</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texte</translation>
    </message>
    <message>
        <source>&amp;Effects</source>
        <translation>&amp;Effets</translation>
    </message>
    <message>
        <source>Textures: %1</source>
        <translation>Textures : %1</translation>
    </message>
</context>
<context>
    <name>velara::fWebTable</name>
    <message>
        <source>All formats</source>
        <translation>Tous les formats</translation>
    </message>
    <message>
        <source>Formats by size</source>
        <translation>Formats par taille</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
    <message>
        <source>Loss</source>
        <translation>Perte</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Choose the format</source>
        <translation>Choisissez le format</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Decibels: the more, the better.</source>
        <translation>Décibels : plus il y en a, mieux c&apos;est.</translation>
    </message>
    <message>
        <source>no loss</source>
        <translation>sans perte</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
</context>
</TS>
