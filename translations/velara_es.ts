<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Clipboard</name>
    <message>
        <source>the picture on the clipboard</source>
        <translation>la imagen del portapapeles</translation>
    </message>
    <message>
        <source>The picture on the clipboard was given up.</source>
        <translation>Se ha renunciado a la imagen del portapapeles.</translation>
    </message>
    <message>
        <source>The picture on the clipboard</source>
        <translation>La imagen del portapapeles</translation>
    </message>
    <message>
        <source>The program that put the picture on the clipboard doesn&apos;t hand it over.</source>
        <translation>El programa que puso la imagen en el portapapeles no la entrega.</translation>
    </message>
</context>
<context>
    <name>Colors</name>
    <message>
        <source>16 Colors</source>
        <translation>16 colores</translation>
    </message>
    <message>
        <source>48 Colors</source>
        <translation>48 colores</translation>
    </message>
    <message>
        <source>Red Pallete</source>
        <translation>Paleta roja</translation>
    </message>
    <message>
        <source>Green Pallete</source>
        <translation>Paleta verde</translation>
    </message>
    <message>
        <source>Blue Pallete</source>
        <translation>Paleta azul</translation>
    </message>
    <message>
        <source>Grey Pallete</source>
        <translation>Paleta gris</translation>
    </message>
    <message>
        <source>System Pallete</source>
        <translation>Paleta del sistema</translation>
    </message>
</context>
<context>
    <name>FileFacts</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>Filters</name>
    <message>
        <source>Color [Colorize]</source>
        <translation>Color [Colorear]</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Luminosidad</translation>
    </message>
    <message>
        <source>Adjust [Brightness]</source>
        <translation>Ajustar [Brillo]</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>levels added; 0 changes nothing</source>
        <translation>niveles añadidos; 0 no cambia nada</translation>
    </message>
    <message>
        <source>Adjust [Contrast]</source>
        <translation>Ajustar [Contraste]</translation>
    </message>
    <message>
        <source>percent added to the contrast; -100 is flat grey</source>
        <translation>porcentaje añadido al contraste; -100 es gris plano</translation>
    </message>
    <message>
        <source>Adjust [Saturation]</source>
        <translation>Ajustar [Saturación]</translation>
    </message>
    <message>
        <source>percent added to the saturation; -100 is grey</source>
        <translation>porcentaje añadido a la saturación; -100 es gris</translation>
    </message>
    <message>
        <source>Adjust [Gamma correction]</source>
        <translation>Ajustar [Corrección gamma]</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>gamma is (Level+100)/100; -100 is black</source>
        <translation>gamma es (Nivel+100)/100; -100 es negro</translation>
    </message>
    <message>
        <source>Definition [Diffuse]</source>
        <translation>Definición [Difuminar]</translation>
    </message>
    <message>
        <source>Horizontal range</source>
        <translation>Alcance horizontal</translation>
    </message>
    <message>
        <source>pixels from left to right</source>
        <translation>píxeles de izquierda a derecha</translation>
    </message>
    <message>
        <source>Vertical range</source>
        <translation>Alcance vertical</translation>
    </message>
    <message>
        <source>pixels from top to bottom</source>
        <translation>píxeles de arriba abajo</translation>
    </message>
    <message>
        <source>Adjust [Blur]</source>
        <translation>Ajustar [Desenfocar]</translation>
    </message>
    <message>
        <source>pixels; 0 changes nothing</source>
        <translation>píxeles; 0 no cambia nada</translation>
    </message>
    <message>
        <source>Definition [Halftone]</source>
        <translation>Definición [Semitono]</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>pixels of a dot</source>
        <translation>píxeles de un punto</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Definición</translation>
    </message>
    <message>
        <source>pixels added to its reach</source>
        <translation>píxeles añadidos a su alcance</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensidad</translation>
    </message>
    <message>
        <source>percent brighter</source>
        <translation>porcentaje más claro</translation>
    </message>
    <message>
        <source>Definition [Pixelaze]</source>
        <translation>Definición [Pixelar]</translation>
    </message>
    <message>
        <source>Pixel size</source>
        <translation>Tamaño del píxel</translation>
    </message>
    <message>
        <source>pixels a side; 1 changes nothing</source>
        <translation>píxeles de lado; 1 no cambia nada</translation>
    </message>
    <message>
        <source>Edges [Emboss]</source>
        <translation>Bordes [Repujado]</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>tenths of the difference; 0 is flat grey</source>
        <translation>décimas de la diferencia; 0 es gris plano</translation>
    </message>
    <message>
        <source>Edges [Engrave]</source>
        <translation>Bordes [Grabado]</translation>
    </message>
    <message>
        <source>Edges [Contour]</source>
        <translation>Bordes [Contorno]</translation>
    </message>
    <message>
        <source>edges darker than this show; 0 is none</source>
        <translation>se ven los bordes más oscuros que esto; 0 es ninguno</translation>
    </message>
    <message>
        <source>Edges [Sketch]</source>
        <translation>Bordes [Boceto]</translation>
    </message>
    <message>
        <source>B/W</source>
        <translation>B/N</translation>
    </message>
    <message>
        <source>edges above it are drawn; flat ones have 255</source>
        <translation>se dibujan los bordes por encima; los planos valen 255</translation>
    </message>
    <message>
        <source>Edges [Threshold]</source>
        <translation>Bordes [Umbral]</translation>
    </message>
    <message>
        <source>Cut value</source>
        <translation>Valor de corte</translation>
    </message>
    <message>
        <source>brightest level that becomes black</source>
        <translation>nivel más claro que se vuelve negro</translation>
    </message>
    <message>
        <source>Color [Isolate]</source>
        <translation>Color [Aislar]</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerancia</translation>
    </message>
    <message>
        <source>percent of half a channel&apos;s range; 0 is the exact colour</source>
        <translation>porcentaje de medio rango de un canal; 0 es el color exacto</translation>
    </message>
    <message>
        <source>Color [Reduction]</source>
        <translation>Color [Reducción]</translation>
    </message>
    <message>
        <source>levels are rounded to multiples of Level+1; 0 changes nothing</source>
        <translation>los niveles se redondean a múltiplos de Nivel+1; 0 no cambia nada</translation>
    </message>
    <message>
        <source>Color [Replace]</source>
        <translation>Color [Reemplazar]</translation>
    </message>
    <message>
        <source>Color [Replace Hue/Sat.]</source>
        <translation>Color [Reemplazar tono/sat.]</translation>
    </message>
    <message>
        <source>Hue Tolerance</source>
        <translation>Tolerancia de tono</translation>
    </message>
    <message>
        <source>hundredths of a sixth of a turn</source>
        <translation>centésimas de un sexto de vuelta</translation>
    </message>
    <message>
        <source>Sat. Tolerance</source>
        <translation>Tolerancia de sat.</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>porcentaje</translation>
    </message>
    <message>
        <source>Apply Tolerance</source>
        <translation>Aplicar tolerancia</translation>
    </message>
    <message>
        <source>Color [Replace Lum.]</source>
        <translation>Color [Reemplazar lum.]</translation>
    </message>
    <message>
        <source>Lum. Tolerance</source>
        <translation>Tolerancia de lum.</translation>
    </message>
    <message>
        <source>percent of brightness</source>
        <translation>porcentaje de brillo</translation>
    </message>
    <message>
        <source>Adjust [Sharpen]</source>
        <translation>Ajustar [Enfocar]</translation>
    </message>
    <message>
        <source>0 weak to 100 strong</source>
        <translation>0 débil a 100 fuerte</translation>
    </message>
    <message>
        <source>Adjust [Soften]</source>
        <translation>Ajustar [Suavizar]</translation>
    </message>
    <message>
        <source>Color [Shift]</source>
        <translation>Color [Desplazar]</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Desplazar</translation>
    </message>
    <message>
        <source>levels added</source>
        <translation>niveles añadidos</translation>
    </message>
    <message>
        <source>Color [Hue rotation]</source>
        <translation>Color [Rotación de tono]</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Desplazamiento</translation>
    </message>
    <message>
        <source>percent of a turn of the hue</source>
        <translation>porcentaje de una vuelta del tono</translation>
    </message>
    <message>
        <source>percent kept; 0 is grey</source>
        <translation>porcentaje conservado; 0 es gris</translation>
    </message>
    <message>
        <source>Color [Grey rotation]</source>
        <translation>Color [Rotación de gris]</translation>
    </message>
    <message>
        <source>phase of the sine in tenths of a radian</source>
        <translation>fase del seno en décimas de radián</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Pasos</translation>
    </message>
    <message>
        <source>its frequency: Steps/2.5 radians from black to white</source>
        <translation>su frecuencia: Pasos/2,5 radianes de negro a blanco</translation>
    </message>
    <message>
        <source>Color [Hue stretch]</source>
        <translation>Color [Estirar tono]</translation>
    </message>
    <message>
        <source>percent; 0 is grey</source>
        <translation>porcentaje; 0 es gris</translation>
    </message>
    <message>
        <source>Stretch factor</source>
        <translation>Factor de estiramiento</translation>
    </message>
    <message>
        <source>tenths of a radian of hue from black to white</source>
        <translation>décimas de radián de tono de negro a blanco</translation>
    </message>
    <message>
        <source>Color [RGB levels]</source>
        <translation>Color [Niveles RGB]</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Color [RGB banks]</source>
        <translation>Color [Canales RGB]</translation>
    </message>
    <message>
        <source>Deformation [Lens]</source>
        <translation>Deformación [Lente]</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diámetro</translation>
    </message>
    <message>
        <source>Magnify factor</source>
        <translation>Factor de aumento</translation>
    </message>
    <message>
        <source>0 nothing to 130 strong</source>
        <translation>0 nada a 130 fuerte</translation>
    </message>
    <message>
        <source>Deformation [Waves]</source>
        <translation>Deformación [Ondas]</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>degrees a row</source>
        <translation>grados por fila</translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation>Amplitud</translation>
    </message>
    <message>
        <source>quarters of a pixel</source>
        <translation>cuartos de píxel</translation>
    </message>
    <message>
        <source>Start degree</source>
        <translation>Grado inicial</translation>
    </message>
    <message>
        <source>degrees at the top row</source>
        <translation>grados en la fila superior</translation>
    </message>
    <message>
        <source>Deformation [Bend]</source>
        <translation>Deformación [Curvar]</translation>
    </message>
    <message>
        <source>Clean back</source>
        <translation>Limpiar el fondo</translation>
    </message>
    <message>
        <source>Radius factor</source>
        <translation>Factor de radio</translation>
    </message>
    <message>
        <source>percent added to twice the radius</source>
        <translation>porcentaje añadido al doble del radio</translation>
    </message>
    <message>
        <source>Deformation [Fold]</source>
        <translation>Deformación [Plegar]</translation>
    </message>
    <message>
        <source>Horizontal factor</source>
        <translation>Factor horizontal</translation>
    </message>
    <message>
        <source>percent at the edge; 0 is none</source>
        <translation>porcentaje en el borde; 0 es ninguno</translation>
    </message>
    <message>
        <source>Vertical factor</source>
        <translation>Factor vertical</translation>
    </message>
    <message>
        <source>Deformation [Rotate]</source>
        <translation>Deformación [Girar]</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grados</translation>
    </message>
    <message>
        <source>to the left; below 0 to the right</source>
        <translation>a la izquierda; por debajo de 0, a la derecha</translation>
    </message>
    <message>
        <source>Deformation [Stretch]</source>
        <translation>Deformación [Estirar]</translation>
    </message>
    <message>
        <source>percent; above 0 shrinks; below 0 enlarges</source>
        <translation>porcentaje; por encima de 0 reduce; por debajo amplía</translation>
    </message>
    <message>
        <source>percent as before</source>
        <translation>porcentaje como antes</translation>
    </message>
    <message>
        <source>Deformation [Tile]</source>
        <translation>Deformación [Mosaico]</translation>
    </message>
    <message>
        <source>Factor</source>
        <translation>Factor</translation>
    </message>
    <message>
        <source>copies a side</source>
        <translation>copias por lado</translation>
    </message>
    <message>
        <source>Deformation [Twirl]</source>
        <translation>Deformación [Remolino]</translation>
    </message>
    <message>
        <source>tenths of a radian at half the width</source>
        <translation>décimas de radián a media anchura</translation>
    </message>
    <message>
        <source>Offset degrees</source>
        <translation>Grados de desplazamiento</translation>
    </message>
    <message>
        <source>degrees for all</source>
        <translation>grados para todo</translation>
    </message>
    <message>
        <source>Special [Grid]</source>
        <translation>Especial [Cuadrícula]</translation>
    </message>
    <message>
        <source>Force margins</source>
        <translation>Forzar márgenes</translation>
    </message>
    <message>
        <source>Horizontal step</source>
        <translation>Paso horizontal</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>píxeles</translation>
    </message>
    <message>
        <source>Vertical step</source>
        <translation>Paso vertical</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>0 invisible to 255 opaque</source>
        <translation>0 invisible a 255 opaco</translation>
    </message>
    <message>
        <source>Special [Light]</source>
        <translation>Especial [Luz]</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Extensión</translation>
    </message>
    <message>
        <source>levels added in the middle</source>
        <translation>niveles añadidos en el centro</translation>
    </message>
    <message>
        <source>percent of it at the rim</source>
        <translation>porcentaje de ello en el borde</translation>
    </message>
    <message>
        <source>Special [Noise]</source>
        <translation>Especial [Ruido]</translation>
    </message>
    <message>
        <source>Equalized</source>
        <translation>Ecualizado</translation>
    </message>
    <message>
        <source>levels up or down</source>
        <translation>niveles arriba o abajo</translation>
    </message>
    <message>
        <source>Special [Scanlines]</source>
        <translation>Especial [Líneas de barrido]</translation>
    </message>
    <message>
        <source>levels taken away</source>
        <translation>niveles quitados</translation>
    </message>
    <message>
        <source>Behind Glass</source>
        <translation>Tras un vidrio</translation>
    </message>
    <message>
        <source>Behind Curtain</source>
        <translation>Tras una cortina</translation>
    </message>
    <message>
        <source>Squary</source>
        <translation>Cuadrado</translation>
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
        <translation>Oblicuo</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Ligero</translation>
    </message>
    <message>
        <source>Tight</source>
        <translation>Estrecho</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>Classy</source>
        <translation>Elegante</translation>
    </message>
    <message>
        <source>Whity</source>
        <translation>Blanquecino</translation>
    </message>
    <message>
        <source>Stored texture</source>
        <translation>Textura guardada</translation>
    </message>
    <message>
        <source>Contour</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Diffuse</source>
        <translation>Difuminar</translation>
    </message>
    <message>
        <source>Dilate</source>
        <translation>Dilatar</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Disolver</translation>
    </message>
    <message>
        <source>Edge enhance</source>
        <translation>Realzar bordes</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>Repujado</translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation>Grabado</translation>
    </message>
    <message>
        <source>Equalize</source>
        <translation>Ecualizar</translation>
    </message>
    <message>
        <source>Erode</source>
        <translation>Erosionar</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Voltear</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Espejo</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plegar</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Semitono</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invertir</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Ruido</translation>
    </message>
    <message>
        <source>Old photo</source>
        <translation>Foto antigua</translation>
    </message>
    <message>
        <source>Painting</source>
        <translation>Pintura</translation>
    </message>
    <message>
        <source>Photocopy</source>
        <translation>Fotocopia</translation>
    </message>
    <message>
        <source>Pixelize</source>
        <translation>Pixelar</translation>
    </message>
    <message>
        <source>Relief</source>
        <translation>Relieve</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Scanlines</source>
        <translation>Líneas de barrido</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Enfocar</translation>
    </message>
    <message>
        <source>Sketch</source>
        <translation>Boceto</translation>
    </message>
    <message>
        <source>Soften</source>
        <translation>Suavizar</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>Térmico</translation>
    </message>
    <message>
        <source>Twirl</source>
        <translation>Remolino</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>Ondas</translation>
    </message>
    <message>
        <source>Invert black</source>
        <translation>Invertir negro</translation>
    </message>
</context>
<context>
    <name>Fonts</name>
    <message>
        <source>Failed to get font info</source>
        <translation>No se pudo obtener la información de la fuente</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>%1 is %2 picture</source>
        <translation>%1 es una imagen %2</translation>
    </message>
    <message>
        <source>All Supported Picture Formats</source>
        <translation>Todos los formatos de imagen admitidos</translation>
    </message>
    <message>
        <source>Bitmap Files (*.BMP;*.DIB)</source>
        <translation>Archivos de mapa de bits (*.BMP;*.DIB)</translation>
    </message>
    <message>
        <source>Meta Files (*.WMF;*.EMF)</source>
        <translation>Metaarchivos (*.WMF;*.EMF)</translation>
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
        <translation>Archivos Zsoft Paintbrush (*.PCX)</translation>
    </message>
    <message>
        <source>Wireless Bitmap (*.WBMP)</source>
        <translation>Mapa de bits inalámbrico (*.WBMP)</translation>
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
        <translation>Icono de Windows (*.ICO)</translation>
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
        <translation>Formato Koala de Commodore 64 (*.KOA)</translation>
    </message>
    <message>
        <source>Kodak PhotoCD (*.PCD)</source>
        <translation>Kodak PhotoCD (*.PCD)</translation>
    </message>
    <message>
        <source>Sun Rasterfile (*.RAS)</source>
        <translation>Archivo Sun Raster (*.RAS)</translation>
    </message>
    <message>
        <source>Targa files (*.TGA)</source>
        <translation>Archivos Targa (*.TGA)</translation>
    </message>
    <message>
        <source>Dr.Halo bitmap (*.CUT)</source>
        <translation>Mapa de bits Dr.Halo (*.CUT)</translation>
    </message>
    <message>
        <source>Interchanged File Format (*.IFF)</source>
        <translation>Formato de archivo de intercambio (*.IFF)</translation>
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
        <translation>Imagen de alta eficiencia (*.HEIC)</translation>
    </message>
    <message>
        <source>AV1 Image File (*.AVIF)</source>
        <translation>Imagen AV1 (*.AVIF)</translation>
    </message>
    <message>
        <source>JPEG XL (*.JXL)</source>
        <translation>JPEG XL (*.JXL)</translation>
    </message>
    <message>
        <source>Scalable Vector Graphics (*.SVG)</source>
        <translation>Gráfico vectorial (*.SVG)</translation>
    </message>
    <message>
        <source>Camera Files (*.DNG;*.CR2;*.NEF;*.ARW;*.RAF;*.ORF;*.RW2)</source>
        <translation>Archivos de cámara (*.DNG;*.CR2;*.NEF;*.ARW;*.RAF;*.ORF;*.RW2)</translation>
    </message>
    <message>
        <source>All Supported graphic formats </source>
        <translation>Todos los formatos gráficos admitidos </translation>
    </message>
    <message>
        <source>Windows Bitmap Files (*.bmp)</source>
        <translation>Archivos de mapa de bits de Windows (*.bmp)</translation>
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
        <translation>Formato de mapa de bits ASCII (*.ppm)(*.pgm)(*.pbm)</translation>
    </message>
    <message>
        <source>Windows Bitmap</source>
        <translation>Mapa de bits de Windows</translation>
    </message>
    <message>
        <source>Meta Files</source>
        <translation>Metaarchivos</translation>
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
        <translation>Formato ZSoft Paintbrush</translation>
    </message>
    <message>
        <source>Wireless Bitmap</source>
        <translation>Mapa de bits inalámbrico</translation>
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
        <translation>Icono de Windows</translation>
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
        <translation>Formato Koala de Commodore 64</translation>
    </message>
    <message>
        <source>Kodak PhotoCD</source>
        <translation>Kodak PhotoCD</translation>
    </message>
    <message>
        <source>Sun Rasterfile</source>
        <translation>Archivo Sun Raster</translation>
    </message>
    <message>
        <source>Targa files</source>
        <translation>Archivos Targa</translation>
    </message>
    <message>
        <source>Dr.Halo bitmap</source>
        <translation>Mapa de bits Dr.Halo</translation>
    </message>
    <message>
        <source>Interchanged File Format</source>
        <translation>Formato de archivo de intercambio</translation>
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
        <translation>Imagen de alta eficiencia</translation>
    </message>
    <message>
        <source>AV1 Image File</source>
        <translation>Imagen AV1</translation>
    </message>
    <message>
        <source>JPEG XL</source>
        <translation>JPEG XL</translation>
    </message>
    <message>
        <source>Scalable Vector Graphics</source>
        <translation>Gráfico vectorial</translation>
    </message>
    <message>
        <source>Camera Files</source>
        <translation>Archivos de cámara</translation>
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
        <translation>de mapa de bits</translation>
    </message>
    <message>
        <source>a Windows metafile</source>
        <translation>metaarchivo de Windows</translation>
    </message>
    <message>
        <source>an enhanced metafile</source>
        <translation>metaarchivo mejorado</translation>
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
        <translation>de icono</translation>
    </message>
    <message>
        <source>a cursor</source>
        <translation>de cursor</translation>
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
        <translation>de cámara</translation>
    </message>
</context>
<context>
    <name>Leftover</name>
    <message>
        <source>Recovered %1</source>
        <translation>%1 recuperada</translation>
    </message>
    <message>
        <source>Its pictures can&apos;t be read.</source>
        <translation>No se pueden leer sus imágenes.</translation>
    </message>
    <message>
        <source>A newer version of the program left it: its name is not known.</source>
        <translation>La dejó una versión más reciente del programa: no se conoce su nombre.</translation>
    </message>
    <message>
        <source>Its record is damaged: its name is not known.</source>
        <translation>Su registro está dañado: no se conoce su nombre.</translation>
    </message>
    <message>
        <source>Its record is missing: its name is not known.</source>
        <translation>Falta su registro: no se conoce su nombre.</translation>
    </message>
    <message>
        <source>The last change could not be kept: this is the one before it.</source>
        <translation>No se pudo conservar el último cambio: este es el anterior.</translation>
    </message>
    <message>
        <source>Not all of its steps back could be kept.</source>
        <translation>No se pudieron conservar todos sus pasos atrás.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation>&amp;Nuevo ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Abrir ...</translation>
    </message>
    <message>
        <source>&amp;Browse ...</source>
        <translation>E&amp;xaminar ...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>A&amp;brir reciente</translation>
    </message>
    <message>
        <source>Next Pa&amp;ge</source>
        <translation>&amp;Página siguiente</translation>
    </message>
    <message>
        <source>Prev&amp;ious Page</source>
        <translation>Pá&amp;gina anterior</translation>
    </message>
    <message>
        <source>Reco&amp;ver ...</source>
        <translation>Recupe&amp;rar ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>G&amp;uardar</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Guar&amp;dar como ...</translation>
    </message>
    <message>
        <source>Save A&amp;ll ...</source>
        <translation>Guardar &amp;todo ...</translation>
    </message>
    <message>
        <source>Save for &amp;Web ...</source>
        <translation>Guardar para &amp;la Web ...</translation>
    </message>
    <message>
        <source>Scann&amp;er</source>
        <translation>&amp;Escáner</translation>
    </message>
    <message>
        <source>Acquire ...</source>
        <translation>Adquirir ...</translation>
    </message>
    <message>
        <source>Select Source ...</source>
        <translation>Elegir origen ...</translation>
    </message>
    <message>
        <source>Digital Camera</source>
        <translation>Cámara digital</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Vista previa de impresión</translation>
    </message>
    <message>
        <source>Printer Setup ...</source>
        <translation>Configurar impresora ...</translation>
    </message>
    <message>
        <source>Print ...</source>
        <translation>Imprimir ...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Cortar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Cop&amp;iar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>Select Non&amp;e</source>
        <translation>&amp;No seleccionar nada</translation>
    </message>
    <message>
        <source>In&amp;vert Selection</source>
        <translation>In&amp;vertir la selección</translation>
    </message>
    <message>
        <source>Create &amp;New Copy</source>
        <translation>Crear &amp;una copia</translation>
    </message>
    <message>
        <source>Copy Image to Clip&amp;board</source>
        <translation>Copiar &amp;la imagen al portapapeles</translation>
    </message>
    <message>
        <source>Create &amp;from Clipboard</source>
        <translation>Crear desde &amp;el portapapeles</translation>
    </message>
    <message>
        <source>Cr&amp;op</source>
        <translation>Recor&amp;tar</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>Recetas</translation>
    </message>
    <message>
        <source>&amp;Run Recipe ...</source>
        <translation>&amp;Ejecutar receta ...</translation>
    </message>
    <message>
        <source>&amp;Save Recipe ...</source>
        <translation>&amp;Guardar receta ...</translation>
    </message>
    <message>
        <source>Run on a &amp;Folder ...</source>
        <translation>Ejecutar en &amp;una carpeta ...</translation>
    </message>
    <message>
        <source>I&amp;mage Properties</source>
        <translation>Propied&amp;ades de la imagen</translation>
    </message>
    <message>
        <source>Opt&amp;ions ...</source>
        <translation>&amp;Opciones ...</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Imagen</translation>
    </message>
    <message>
        <source>Image Size ...</source>
        <translation>Tamaño de la imagen ...</translation>
    </message>
    <message>
        <source>Canvas Size ...</source>
        <translation>Tamaño del lienzo ...</translation>
    </message>
    <message>
        <source>Orientation ...</source>
        <translation>Orientación ...</translation>
    </message>
    <message>
        <source>Rotate ...</source>
        <translation>Girar ...</translation>
    </message>
    <message>
        <source>Restore Original</source>
        <translation>Restaurar el original</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Acercar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>A&amp;lejar</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Tamaño original</translation>
    </message>
    <message>
        <source>&amp;Quality Size</source>
        <translation>&amp;Tamaño con calidad</translation>
    </message>
    <message>
        <source>2 x larger</source>
        <translation>2 x mayor</translation>
    </message>
    <message>
        <source>3 x larger</source>
        <translation>3 x mayor</translation>
    </message>
    <message>
        <source>4 x larger</source>
        <translation>4 x mayor</translation>
    </message>
    <message>
        <source>5 x larger</source>
        <translation>5 x mayor</translation>
    </message>
    <message>
        <source>2 x smaller</source>
        <translation>2 x menor</translation>
    </message>
    <message>
        <source>3 x smaller</source>
        <translation>3 x menor</translation>
    </message>
    <message>
        <source>4 x smaller</source>
        <translation>4 x menor</translation>
    </message>
    <message>
        <source>5 x smaller</source>
        <translation>5 x menor</translation>
    </message>
    <message>
        <source>Quick Rotate</source>
        <translation>Giro rápido</translation>
    </message>
    <message>
        <source>Quality Rotate</source>
        <translation>Giro con calidad</translation>
    </message>
    <message>
        <source>Flip &amp;Horizontal</source>
        <translation>&amp;Voltear en horizontal</translation>
    </message>
    <message>
        <source>Flip &amp;Vertical</source>
        <translation>Voltear &amp;en vertical</translation>
    </message>
    <message>
        <source>&amp;Properties ...</source>
        <translation>&amp;Propiedades ...</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>&amp;Colores</translation>
    </message>
    <message>
        <source>Tweak RGB</source>
        <translation>Ajustar RGB</translation>
    </message>
    <message>
        <source>Old Photo</source>
        <translation>Foto antigua</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Colorear</translation>
    </message>
    <message>
        <source>Sketch</source>
        <translation>Boceto</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>Aislar</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Desplazar</translation>
    </message>
    <message>
        <source>Sepia Tone</source>
        <translation>Tono sepia</translation>
    </message>
    <message>
        <source>Hue Stretch</source>
        <translation>Estirar tono</translation>
    </message>
    <message>
        <source>Hue Rotation</source>
        <translation>Rotación de tono</translation>
    </message>
    <message>
        <source>Grey Rotation</source>
        <translation>Rotación de gris</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Hue &amp;&amp; Saturation</source>
        <translation>Tono &amp;&amp; saturación</translation>
    </message>
    <message>
        <source>Luminous</source>
        <translation>Luminosidad</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Intercambiar</translation>
    </message>
    <message>
        <source>RGB To BRG</source>
        <translation>RGB a BRG</translation>
    </message>
    <message>
        <source>RGB To GBR</source>
        <translation>RGB a GBR</translation>
    </message>
    <message>
        <source>RGB To RBG</source>
        <translation>RGB a RBG</translation>
    </message>
    <message>
        <source>RGB To BGR</source>
        <translation>RGB a BGR</translation>
    </message>
    <message>
        <source>RGB To GRB</source>
        <translation>RGB a GRB</translation>
    </message>
    <message>
        <source>RGB Banks</source>
        <translation>Canales RGB</translation>
    </message>
    <message>
        <source>Add Colors</source>
        <translation>Añadir colores</translation>
    </message>
    <message>
        <source>Soft Red</source>
        <translation>Rojo suave</translation>
    </message>
    <message>
        <source>Hard Red</source>
        <translation>Rojo intenso</translation>
    </message>
    <message>
        <source>Soft Green</source>
        <translation>Verde suave</translation>
    </message>
    <message>
        <source>Hard Green</source>
        <translation>Verde intenso</translation>
    </message>
    <message>
        <source>Soft Blue</source>
        <translation>Azul suave</translation>
    </message>
    <message>
        <source>Hard Blue</source>
        <translation>Azul intenso</translation>
    </message>
    <message>
        <source>Soft Yellow</source>
        <translation>Amarillo suave</translation>
    </message>
    <message>
        <source>Hard Yellow</source>
        <translation>Amarillo intenso</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Púrpura</translation>
    </message>
    <message>
        <source>Retro</source>
        <translation>Retro</translation>
    </message>
    <message>
        <source>Spotted</source>
        <translation>Moteado</translation>
    </message>
    <message>
        <source>Wet Paper</source>
        <translation>Papel mojado</translation>
    </message>
    <message>
        <source>Fi&amp;lters</source>
        <translation>&amp;Filtros</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invertir</translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation>Escala de grises</translation>
    </message>
    <message>
        <source>Relief</source>
        <translation>Relieve</translation>
    </message>
    <message>
        <source>Erode</source>
        <translation>Erosionar</translation>
    </message>
    <message>
        <source>Dilate</source>
        <translation>Dilatar</translation>
    </message>
    <message>
        <source>Painting</source>
        <translation>Pintura</translation>
    </message>
    <message>
        <source>Edge Enhance</source>
        <translation>Realzar bordes</translation>
    </message>
    <message>
        <source>Luminousity</source>
        <translation>Luminosidad</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Ligero</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Fuerte</translation>
    </message>
    <message>
        <source>Custom ...</source>
        <translation>Personalizado ...</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>Repujado</translation>
    </message>
    <message>
        <source>Contour</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Diffuse</source>
        <translation>Difuminar</translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation>Grabado</translation>
    </message>
    <message>
        <source>Soften</source>
        <translation>Suavizar</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Enfocar</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Desenfocar</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Ruido</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <source>Flare</source>
        <translation>Destello</translation>
    </message>
    <message>
        <source>Scanlines</source>
        <translation>Líneas de barrido</translation>
    </message>
    <message>
        <source>Effect&amp;s</source>
        <translation>Efec&amp;tos</translation>
    </message>
    <message>
        <source>Haftone</source>
        <translation>Semitono</translation>
    </message>
    <message>
        <source>Pixelize</source>
        <translation>Pixelar</translation>
    </message>
    <message>
        <source>Mosaic</source>
        <translation>Mosaico</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Gamma Correction</source>
        <translation>Corrección gamma</translation>
    </message>
    <message>
        <source>Thermique</source>
        <translation>Térmico</translation>
    </message>
    <message>
        <source>X-Black</source>
        <translation>X-Negro</translation>
    </message>
    <message>
        <source>Photo Cop</source>
        <translation>Fotocopia</translation>
    </message>
    <message>
        <source>Shapes</source>
        <translation>Formas</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Lente</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>Ondas</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Curvar</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plegar</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Estirar</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Mosaico</translation>
    </message>
    <message>
        <source>Twirl</source>
        <translation>Remolino</translation>
    </message>
    <message>
        <source>Glass</source>
        <translation>Vidrio</translation>
    </message>
    <message>
        <source>Slanting</source>
        <translation>Oblicuo</translation>
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
        <translation>Cuadrado</translation>
    </message>
    <message>
        <source>Curtain</source>
        <translation>Cortina</translation>
    </message>
    <message>
        <source>Classy</source>
        <translation>Elegante</translation>
    </message>
    <message>
        <source>Whity</source>
        <translation>Blanquecino</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>Image Merging ...</source>
        <translation>Combinar imágenes ...</translation>
    </message>
    <message>
        <source>Screen Capture ...</source>
        <translation>Captura de pantalla ...</translation>
    </message>
    <message>
        <source>Image Textures ...</source>
        <translation>Texturas de imagen ...</translation>
    </message>
    <message>
        <source>Image Resolution ...</source>
        <translation>Resolución de la imagen ...</translation>
    </message>
    <message>
        <source>Color Depth ...</source>
        <translation>Profundidad de color ...</translation>
    </message>
    <message>
        <source>Save for Web ...</source>
        <translation>Guardar para la Web ...</translation>
    </message>
    <message>
        <source>Text Tools ...</source>
        <translation>Herramientas de texto ...</translation>
    </message>
    <message>
        <source>Icon Extractor ...</source>
        <translation>Extractor de iconos ...</translation>
    </message>
    <message>
        <source>File Associations ...</source>
        <translation>Asociaciones de archivos ...</translation>
    </message>
    <message>
        <source>Quick Capture</source>
        <translation>Captura rápida</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Primer plano</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Set as Wallpaper</source>
        <translation>Usar como fondo de escritorio</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centrar</translation>
    </message>
    <message>
        <source>&amp;Views</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Tile Horizontally</source>
        <translation>Mosaico horizontal</translation>
    </message>
    <message>
        <source>Tile Vertically</source>
        <translation>Mosaico vertical</translation>
    </message>
    <message>
        <source>Cascade</source>
        <translation>Cascada</translation>
    </message>
    <message>
        <source>New View</source>
        <translation>Vista nueva</translation>
    </message>
    <message>
        <source>Color Box</source>
        <translation>Caja de colores</translation>
    </message>
    <message>
        <source>Textures Box</source>
        <translation>Caja de texturas</translation>
    </message>
    <message>
        <source>Clipboard Box</source>
        <translation>Caja del portapapeles</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Status Bar</source>
        <translation>Barra de estado</translation>
    </message>
    <message>
        <source>Side Tools  Bar : Hide n Seek</source>
        <translation>Barra lateral : escondite</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barras de herramientas</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>Utilidades</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Store Toolbar Layout</source>
        <translation>Guardar disposición de las barras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Help ...</source>
        <translation>&amp;Ayuda ...</translation>
    </message>
    <message>
        <source>&amp;Find a Command ...</source>
        <translation>&amp;Buscar un comando ...</translation>
    </message>
    <message>
        <source>&amp;About Velara Studio</source>
        <translation>Acerca &amp;de Velara Studio</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Glass: Horizontal</source>
        <translation>Vidrio: horizontal</translation>
    </message>
    <message>
        <source>Luminousity: Light</source>
        <translation>Luminosidad: ligera</translation>
    </message>
    <message>
        <source>Luminousity: Heavy</source>
        <translation>Luminosidad: fuerte</translation>
    </message>
    <message>
        <source>Blur: Light</source>
        <translation>Desenfocar: ligero</translation>
    </message>
    <message>
        <source>Emboss: Light</source>
        <translation>Repujado: ligero</translation>
    </message>
    <message>
        <source>Contour: Light</source>
        <translation>Contorno: ligero</translation>
    </message>
    <message>
        <source>Diffuse: Light</source>
        <translation>Difuminar: ligero</translation>
    </message>
    <message>
        <source>Engrave: Light</source>
        <translation>Grabado: ligero</translation>
    </message>
    <message>
        <source>Soften: Heavy</source>
        <translation>Suavizar: fuerte</translation>
    </message>
    <message>
        <source>Noise: Light</source>
        <translation>Ruido: ligero</translation>
    </message>
    <message>
        <source>Saturation: Heavy</source>
        <translation>Saturación: fuerte</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>Tamaño original</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Quick rotate</source>
        <translation>Giro rápido</translation>
    </message>
    <message>
        <source>Quality rotate</source>
        <translation>Giro con calidad</translation>
    </message>
    <message>
        <source>Quality size</source>
        <translation>Tamaño con calidad</translation>
    </message>
    <message>
        <source>Save for web</source>
        <translation>Guardar para la Web</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>Image resolution</source>
        <translation>Resolución de la imagen</translation>
    </message>
    <message>
        <source>Image merging</source>
        <translation>Combinar imágenes</translation>
    </message>
    <message>
        <source>Image textures</source>
        <translation>Texturas de imagen</translation>
    </message>
    <message>
        <source>Color depth</source>
        <translation>Profundidad de color</translation>
    </message>
    <message>
        <source>Text tools</source>
        <translation>Herramientas de texto</translation>
    </message>
    <message>
        <source>Icon extractor</source>
        <translation>Extractor de iconos</translation>
    </message>
    <message>
        <source>Quick capture</source>
        <translation>Captura rápida</translation>
    </message>
    <message>
        <source>Set as wallpaper</source>
        <translation>Usar como fondo de escritorio</translation>
    </message>
    <message>
        <source>About Velara Studio</source>
        <translation>Acerca de Velara Studio</translation>
    </message>
    <message>
        <source>Scroll with the hand (H)</source>
        <translation>Desplazar con la mano (H)</translation>
    </message>
    <message>
        <source>Zoom in (Ctrl++)</source>
        <translation>Acercar (Ctrl++)</translation>
    </message>
    <message>
        <source>Zoom out (Ctrl+-)</source>
        <translation>Alejar (Ctrl+-)</translation>
    </message>
    <message>
        <source>Pictures that were not saved when the program ended</source>
        <translation>Imágenes sin guardar al terminar el programa</translation>
    </message>
    <message>
        <source>The next page or frame of the file, in a window of its own</source>
        <translation>La página o el fotograma siguiente del archivo, en su propia ventana</translation>
    </message>
    <message>
        <source>The page or frame of the file before this one</source>
        <translation>La página o el fotograma del archivo anterior a este</translation>
    </message>
    <message>
        <source>What was done to this picture</source>
        <translation>Lo que se hizo con esta imagen</translation>
    </message>
    <message>
        <source>Writes every changed picture to its own file</source>
        <translation>Escribe cada imagen cambiada en su propio archivo</translation>
    </message>
    <message>
        <source>Does the steps of a recipe to this picture, as one</source>
        <translation>Aplica los pasos de una receta a esta imagen, como uno solo</translation>
    </message>
    <message>
        <source>Keeps what was done to this picture, to do it to others</source>
        <translation>Guarda lo hecho con esta imagen, para aplicarlo a otras</translation>
    </message>
    <message>
        <source>Does a recipe to many pictures, beside the editor</source>
        <translation>Aplica una receta a muchas imágenes, al margen del editor</translation>
    </message>
    <message>
        <source>Mixes each pixel from those one pixel away: too little to hide anything</source>
        <translation>Mezcla cada píxel con los que están a un píxel: demasiado poco para ocultar nada</translation>
    </message>
    <message>
        <source>Mixes each pixel from those two pixels away: too little to hide anything</source>
        <translation>Mezcla cada píxel con los que están a dos píxeles: demasiado poco para ocultar nada</translation>
    </message>
    <message>
        <source>Mixes each pixel from those up to two pixels away: too little to hide anything</source>
        <translation>Mezcla cada píxel con los que están hasta a dos píxeles: demasiado poco para ocultar nada</translation>
    </message>
    <message>
        <source>Squares of one colour: hides a face or a number plate</source>
        <translation>Cuadros de un solo color: oculta una cara o una matrícula</translation>
    </message>
    <message>
        <source>&amp;Keys and Mouse ...</source>
        <translation>Teclas y &amp;ratón ...</translation>
    </message>
    <message>
        <source>The manual, at the page of what you are doing</source>
        <translation>El manual, en la página de lo que está haciendo</translation>
    </message>
</context>
<context>
    <name>Properties</name>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Lente</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exposición</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>nothing was cut or copied</source>
        <translation>no se ha cortado ni copiado nada</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>What is pasted is larger than the picture.</source>
        <translation>Lo que se pega es mayor que la imagen.</translation>
    </message>
    <message>
        <source>&amp;Enlarge the picture</source>
        <translation>&amp;Agrandar la imagen</translation>
    </message>
    <message>
        <source>&amp;Keep its size</source>
        <translation>&amp;Conservar su tamaño</translation>
    </message>
    <message>
        <source>The screen gave no picture.</source>
        <translation>La pantalla no dio ninguna imagen.</translation>
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
y %n más</numerusform>
            <numerusform>
y %n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReadingBox</name>
    <message>
        <source>Reading %1 ...</source>
        <translation>Leyendo %1 ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>it is damaged or not %1 picture</source>
        <translation>está dañado o no es una imagen %1</translation>
    </message>
    <message>
        <source>it is damaged, and its reader gave up</source>
        <translation>está dañado, y su lector se rindió</translation>
    </message>
    <message>
        <source>it is damaged, and its reader wanted what no picture needs</source>
        <translation>está dañado, y su lector pidió lo que ninguna imagen necesita</translation>
    </message>
    <message>
        <source>it is damaged: it has hardly any bytes for its %1 x %2 pixels</source>
        <translation>está dañado: apenas tiene bytes para sus %1 x %2 píxeles</translation>
    </message>
    <message>
        <source>it is damaged: some of its pixels are missing</source>
        <translation>está dañado: le faltan píxeles</translation>
    </message>
    <message>
        <source>it is damaged between its first row and its last</source>
        <translation>está dañado entre su primera fila y la última</translation>
    </message>
    <message>
        <source>it is cut off: its end is missing</source>
        <translation>está cortado: le falta el final</translation>
    </message>
    <message>
        <source>it is wider or higher than 32767 pixels, or has more than 268 million pixels</source>
        <translation>mide más de 32767 píxeles de ancho o de alto, o tiene más de 268 millones de píxeles</translation>
    </message>
    <message>
        <source>it needs more memory than reading a picture may take</source>
        <translation>necesita más memoria de la que puede usar la lectura de una imagen</translation>
    </message>
    <message>
        <source>it is empty or can&apos;t be opened</source>
        <translation>está vacío o no se puede abrir</translation>
    </message>
    <message>
        <source>it has more than two gigabytes</source>
        <translation>tiene más de dos gigabytes</translation>
    </message>
    <message>
        <source>its name has no extension to tell what it is</source>
        <translation>su nombre no tiene extensión que diga qué es</translation>
    </message>
    <message>
        <source>there is no reader for .%1 files</source>
        <translation>no hay lector para archivos .%1</translation>
    </message>
    <message>
        <source>its reader could not be locked in (%1)</source>
        <translation>no se pudo aislar su lector (%1)</translation>
    </message>
    <message>
        <source>velara-decode-all, which reads %1 picture, can&apos;t be started</source>
        <translation>no se puede iniciar velara-decode-all, que lee una imagen %1</translation>
    </message>
    <message>
        <source>this build lacks the library that reads %1 picture</source>
        <translation>a esta compilación le falta la biblioteca que lee una imagen %1</translation>
    </message>
    <message>
        <source>the library that reads HEIF and AVIF pictures (libheif) is missing</source>
        <translation>falta la biblioteca que lee imágenes HEIF y AVIF (libheif)</translation>
    </message>
    <message>
        <source>the library that reads JPEG XL pictures (libjxl) is missing</source>
        <translation>falta la biblioteca que lee imágenes JPEG XL (libjxl)</translation>
    </message>
    <message>
        <source>the fonts that metafiles are drawn with are missing</source>
        <translation>faltan las fuentes con las que se dibujan los metaarchivos</translation>
    </message>
    <message>
        <source>it has only %1 pages</source>
        <translation>solo tiene %1 páginas</translation>
    </message>
    <message>
        <source>it has only one page</source>
        <translation>solo tiene una página</translation>
    </message>
    <message>
        <source>reading it was given up</source>
        <translation>se ha renunciado a leerlo</translation>
    </message>
    <message>
        <source>reading it took too long and was stopped</source>
        <translation>leerlo tardó demasiado y se detuvo</translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) gave a false answer</source>
        <translation>el programa que lee imágenes (velara-decode) dio una respuesta falsa</translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) can&apos;t be started</source>
        <translation>no se puede iniciar el programa que lee imágenes (velara-decode)</translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) was not found</source>
        <translation>no se encontró el programa que lee imágenes (velara-decode)</translation>
    </message>
    <message>
        <source>a sanitizer stopped its reader</source>
        <translation>un detector de errores detuvo su lector</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ese archivo no existe</translation>
    </message>
    <message>
        <source>there is no permission to read it</source>
        <translation>no hay permiso para leerlo</translation>
    </message>
    <message>
        <source>the system says &quot;%1&quot;</source>
        <translation>el sistema dice «%1»</translation>
    </message>
    <message>
        <source>the system tells nothing about it</source>
        <translation>el sistema no dice nada de él</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>no es un archivo corriente</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>it has more than the %1 pixels that limits.conf allows</source>
        <translation>tiene más de los %1 píxeles que permite limits.conf</translation>
    </message>
    <message>
        <source>limits.conf has turned .%1 files off</source>
        <translation>limits.conf ha desactivado los archivos .%1</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>no hay memoria suficiente para él</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>no room in the Temp folder</source>
        <translation>no hay espacio en la carpeta Temp</translation>
    </message>
    <message>
        <source>the Temp folder can&apos;t be written to</source>
        <translation>no se puede escribir en la carpeta Temp</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Desbordamiento</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>División por cero</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Subíndice fuera de rango</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>No hay nada seleccionado</translation>
    </message>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation>Tamaño mínimo: 2 x 2</translation>
    </message>
    <message>
        <source>Internal Error</source>
        <translation>Error interno</translation>
    </message>
    <message>
        <source>There was an error while saving! Please Restart Velara&apos;s Studio</source>
        <translation>¡Se produjo un error al guardar! Reinicie Velara Studio</translation>
    </message>
    <message>
        <source>Collection of ASCII based bitmap</source>
        <translation>Conjunto de mapas de bits ASCII</translation>
    </message>
    <message>
        <source>A WebP picture has at most 16383 pixels a side.</source>
        <translation>Una imagen WebP tiene como máximo 16383 píxeles de lado.</translation>
    </message>
    <message>
        <source>This facility is currently turned Off!</source>
        <translation>¡Esta función está desactivada actualmente!</translation>
    </message>
    <message>
        <source>I don&apos;t know how to put a DIB on the clipboard! Copy as bitmap instead!!!</source>
        <translation>¡No sé cómo poner un DIB en el portapapeles! ¡Copie como mapa de bits!</translation>
    </message>
    <message>
        <source>the page can&apos;t be read</source>
        <translation>no se puede leer la página</translation>
    </message>
    <message>
        <source>the page can&apos;t be written</source>
        <translation>no se puede escribir la página</translation>
    </message>
    <message>
        <source>the file can&apos;t be written</source>
        <translation>no se puede escribir el archivo</translation>
    </message>
    <message>
        <source>the print server does not answer</source>
        <translation>el servidor de impresión no responde</translation>
    </message>
    <message>
        <source>there is no print server</source>
        <translation>no hay servidor de impresión</translation>
    </message>
    <message>
        <source>there is no printer %1 any more</source>
        <translation>ya no hay ninguna impresora %1</translation>
    </message>
    <message>
        <source>the print server has not taken the page</source>
        <translation>el servidor de impresión no ha aceptado la página</translation>
    </message>
    <message>
        <source>%1 refused the page</source>
        <translation>%1 rechazó la página</translation>
    </message>
    <message>
        <source>The printer %1 is paused. The page waits in its queue.</source>
        <translation>La impresora %1 está en pausa. La página espera en su cola.</translation>
    </message>
    <message>
        <source>The page is held in the queue of the printer %1.</source>
        <translation>La página está retenida en la cola de la impresora %1.</translation>
    </message>
    <message>
        <source>The picture of the screen is all black.</source>
        <translation>La imagen de la pantalla es toda negra.</translation>
    </message>
    <message>
        <source>a profile that can&apos;t be read</source>
        <translation>un perfil que no se puede leer</translation>
    </message>
    <message>
        <source>%1 bits a pixel in the file</source>
        <translation>%1 bits por píxel en el archivo</translation>
    </message>
    <message>
        <source>%1 x %2 dots per inch</source>
        <translation>%1 x %2 puntos por pulgada</translation>
    </message>
    <message>
        <source>it is too large for a recipe</source>
        <translation>es demasiado grande para una receta</translation>
    </message>
    <message>
        <source>a recipe begins with &quot;%1&quot;</source>
        <translation>una receta empieza por «%1»</translation>
    </message>
    <message>
        <source>the recipe is of version %1, and this program knows those up to %2</source>
        <translation>la receta es de la versión %1, y este programa las conoce hasta la %2</translation>
    </message>
    <message>
        <source>%1 is no step; of the options only %2 SHAPE is</source>
        <translation>%1 no es un paso; de las opciones solo lo es %2 SHAPE</translation>
    </message>
    <message>
        <source>%1 is a command word and takes no arguments</source>
        <translation>%1 es una palabra de comando y no admite argumentos</translation>
    </message>
    <message>
        <source>the closing bracket is missing</source>
        <translation>falta el paréntesis de cierre</translation>
    </message>
    <message>
        <source>there is no pixel in it</source>
        <translation>no contiene ningún píxel</translation>
    </message>
    <message>
        <source>PBM, PGM and PPM: If the bitmap has a bit depth of 1, the file is saved as a PBM file. If the bitmap has a bit depth of 8, the file is saved as a PGM file. If the bitmap has a bit depth of 24, the file is saved as a PPM file. Other bit depths are not supported. The file you requested is saved as 24-bit True Color (.ppm) format.</source>
        <translation>PBM, PGM y PPM: si el mapa de bits tiene 1 bit de profundidad, el archivo se guarda como PBM; si tiene 8 bits, como PGM; si tiene 24 bits, como PPM. No se admiten otras profundidades. El archivo solicitado se guarda en formato de color verdadero de 24 bits (.ppm).</translation>
    </message>
    <message>
        <source>it needs %1 of memory, more than half of the %2 that are free</source>
        <translation>necesita %1 de memoria, más de la mitad de los %2 libres</translation>
    </message>
    <message>
        <source>the picture would have %1</source>
        <translation>la imagen tendría %1</translation>
    </message>
    <message>
        <source>no pixels</source>
        <translation>ningún píxel</translation>
    </message>
    <message>
        <source>%1 x %2 pixels; a side has at most %3</source>
        <translation>%1 x %2 píxeles; un lado tiene como máximo %3</translation>
    </message>
    <message>
        <source>%1 megapixels (%2 x %3 pixels); at most %4 are possible</source>
        <translation>%1 megapíxeles (%2 x %3 píxeles); como máximo son posibles %4</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>No se puede leer %1</translation>
    </message>
    <message>
        <source>its pixels are of a kind that isn&apos;t read: %1 x %2 bits</source>
        <translation>Sus píxeles son de un tipo que no se lee: %1 x %2 bits</translation>
    </message>
    <message>
        <source>it has fewer inks than cyan, magenta and yellow</source>
        <translation>Tiene menos tintas que cian, magenta y amarillo</translation>
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
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Windows 256</source>
        <translation>Windows 256</translation>
    </message>
    <message>
        <source>GIF-2 Colors</source>
        <translation>GIF-2 colores</translation>
    </message>
    <message>
        <source>2 Colors</source>
        <translation>2 colores</translation>
    </message>
    <message>
        <source>GIF-4 Colors</source>
        <translation>GIF-4 colores</translation>
    </message>
    <message>
        <source>4 Colors</source>
        <translation>4 colores</translation>
    </message>
    <message>
        <source>GIF-8 Colors</source>
        <translation>GIF-8 colores</translation>
    </message>
    <message>
        <source>8 Colors</source>
        <translation>8 colores</translation>
    </message>
    <message>
        <source>GIF-16 Colors</source>
        <translation>GIF-16 colores</translation>
    </message>
    <message>
        <source>16 Colors</source>
        <translation>16 colores</translation>
    </message>
    <message>
        <source>GIF-32 Colors</source>
        <translation>GIF-32 colores</translation>
    </message>
    <message>
        <source>32 Colors</source>
        <translation>32 colores</translation>
    </message>
    <message>
        <source>GIF-64 Colors</source>
        <translation>GIF-64 colores</translation>
    </message>
    <message>
        <source>64 Colors</source>
        <translation>64 colores</translation>
    </message>
    <message>
        <source>GIF-128 Colors</source>
        <translation>GIF-128 colores</translation>
    </message>
    <message>
        <source>128 Colors</source>
        <translation>128 colores</translation>
    </message>
    <message>
        <source>GIF-256 Colors</source>
        <translation>GIF-256 colores</translation>
    </message>
    <message>
        <source>256 Colors</source>
        <translation>256 colores</translation>
    </message>
    <message>
        <source>BMP-2 Colors</source>
        <translation>BMP-2 colores</translation>
    </message>
    <message>
        <source>BMP-16 Colors</source>
        <translation>BMP-16 colores</translation>
    </message>
    <message>
        <source>BMP-256 Colors</source>
        <translation>BMP-256 colores</translation>
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
        <translation>PCX-24 bits (comprimido)</translation>
    </message>
    <message>
        <source>PCX-24 bit (Uncompressed)</source>
        <translation>PCX-24 bits (sin comprimir)</translation>
    </message>
    <message>
        <source>TGA-24 bit (Compressed)</source>
        <translation>TGA-24 bits (comprimido)</translation>
    </message>
    <message>
        <source>TGA-24 bit (Uncompressed)</source>
        <translation>TGA-24 bits (sin comprimir)</translation>
    </message>
    <message>
        <source>TIFF-24 bit (Uncompressed)</source>
        <translation>TIFF-24 bits (sin comprimir)</translation>
    </message>
    <message>
        <source>WebP</source>
        <translation>WebP</translation>
    </message>
    <message>
        <source>WebP (Lossless)</source>
        <translation>WebP (sin pérdida)</translation>
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
        <translation>Mapa MS</translation>
    </message>
    <message>
        <source>Optimal</source>
        <translation>Óptimo</translation>
    </message>
    <message>
        <source>Fixed Color</source>
        <translation>Color fijo</translation>
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
        <translation>Gris fijo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binario</translation>
    </message>
    <message>
        <source>Ordered</source>
        <translation>Ordenado</translation>
    </message>
    <message>
        <source>Haftone</source>
        <translation>Semitono</translation>
    </message>
    <message>
        <source>Forward Diag</source>
        <translation>Diag. ascendente</translation>
    </message>
    <message>
        <source>Backward Diag</source>
        <translation>Diag. descendente</translation>
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
        <translation>Impar</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation>Igual</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation>Escala de grises</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Mala</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Buena</translation>
    </message>
    <message>
        <source>Superb</source>
        <translation>Excelente</translation>
    </message>
</context>
<context>
    <name>Search words</name>
    <message>
        <source>blank empty create</source>
        <translation>en blanco vacío crear</translation>
    </message>
    <message>
        <source>load import file</source>
        <translation>cargar importar archivo</translation>
    </message>
    <message>
        <source>scan paper</source>
        <translation>escanear papel</translation>
    </message>
    <message>
        <source>screenshot whole screen</source>
        <translation>captura pantalla completa</translation>
    </message>
    <message>
        <source>back revert mistake</source>
        <translation>atrás revertir error</translation>
    </message>
    <message>
        <source>again forward</source>
        <translation>otra vez adelante</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>duplicar</translation>
    </message>
    <message>
        <source>paste as new picture</source>
        <translation>pegar como imagen nueva</translation>
    </message>
    <message>
        <source>resize scale percent width height pixels larger smaller</source>
        <translation>redimensionar escala porcentaje ancho alto píxeles mayor menor</translation>
    </message>
    <message>
        <source>border margin room enlarge</source>
        <translation>borde margen espacio ampliar</translation>
    </message>
    <message>
        <source>turn portrait landscape</source>
        <translation>girar vertical horizontal</translation>
    </message>
    <message>
        <source>turn angle degrees straighten horizon</source>
        <translation>girar ángulo grados enderezar horizonte</translation>
    </message>
    <message>
        <source>export rename convert format</source>
        <translation>exportar renombrar convertir formato</translation>
    </message>
    <message>
        <source>insert clipboard</source>
        <translation>insertar portapapeles</translation>
    </message>
    <message>
        <source>cut out trim margins</source>
        <translation>recortar quitar márgenes</translation>
    </message>
    <message>
        <source>settings preferences configure</source>
        <translation>ajustes preferencias configurar</translation>
    </message>
    <message>
        <source>overlay blend double exposure two pictures</source>
        <translation>superponer mezclar doble exposición dos imágenes</translation>
    </message>
    <message>
        <source>resize</source>
        <translation>redimensionar</translation>
    </message>
    <message>
        <source>export gif jpeg png small kilobytes compress quality</source>
        <translation>exportar gif jpeg png pequeño kilobytes comprimir calidad</translation>
    </message>
    <message>
        <source>palette indexed 256 16 colours reduce dither</source>
        <translation>paleta indexada 256 16 colores reducir tramado</translation>
    </message>
    <message>
        <source>write letters caption font</source>
        <translation>escribir letras rótulo fuente</translation>
    </message>
    <message>
        <source>desktop background</source>
        <translation>fondo de escritorio</translation>
    </message>
    <message>
        <source>thumbnails folder gallery</source>
        <translation>miniaturas carpeta galería</translation>
    </message>
    <message>
        <source>crash unsaved restore lost</source>
        <translation>fallo sin guardar restaurar perdido</translation>
    </message>
    <message>
        <source>screenshot window screen</source>
        <translation>captura ventana pantalla</translation>
    </message>
    <message>
        <source>ico extract</source>
        <translation>ico extraer</translation>
    </message>
    <message>
        <source>tiff gif animation icon</source>
        <translation>tiff gif animación icono</translation>
    </message>
    <message>
        <source>default program double click</source>
        <translation>programa predeterminado doble clic</translation>
    </message>
    <message>
        <source>quit close</source>
        <translation>salir cerrar</translation>
    </message>
    <message>
        <source>second window</source>
        <translation>segunda ventana</translation>
    </message>
    <message>
        <source>exif camera date place gps profile metadata information facts</source>
        <translation>exif cámara fecha lugar gps perfil metadatos información</translation>
    </message>
    <message>
        <source>version licence</source>
        <translation>versión licencia</translation>
    </message>
    <message>
        <source>deselect</source>
        <translation>deseleccionar</translation>
    </message>
    <message>
        <source>undo steps states back</source>
        <translation>deshacer pasos estados atrás</translation>
    </message>
    <message>
        <source>every open</source>
        <translation>todas abiertas</translation>
    </message>
    <message>
        <source>macro action script batch replay</source>
        <translation>macro acción script lote repetir</translation>
    </message>
    <message>
        <source>macro action script batch record</source>
        <translation>macro acción script lote grabar</translation>
    </message>
    <message>
        <source>batch many pictures macro convert all</source>
        <translation>lote muchas imágenes macro convertir todo</translation>
    </message>
    <message>
        <source>negative</source>
        <translation>negativo</translation>
    </message>
    <message>
        <source>black and white grey monochrome</source>
        <translation>blanco y negro gris monocromo</translation>
    </message>
    <message>
        <source>crisp focus</source>
        <translation>nítido enfoque</translation>
    </message>
    <message>
        <source>soft unsharp</source>
        <translation>suave borroso</translation>
    </message>
    <message>
        <source>vintage brown</source>
        <translation>antiguo marrón</translation>
    </message>
    <message>
        <source>vintage brown old</source>
        <translation>antiguo marrón viejo</translation>
    </message>
    <message>
        <source>mirror left right</source>
        <translation>espejo izquierda derecha</translation>
    </message>
    <message>
        <source>mirror top bottom upside down</source>
        <translation>espejo arriba abajo cabeza abajo</translation>
    </message>
    <message>
        <source>zoom 100 % actual pixels</source>
        <translation>zoom 100 % píxeles reales</translation>
    </message>
    <message>
        <source>turn right clockwise</source>
        <translation>girar a la derecha sentido horario</translation>
    </message>
    <message>
        <source>turn upside down</source>
        <translation>girar cabeza abajo</translation>
    </message>
    <message>
        <source>turn left counterclockwise</source>
        <translation>girar a la izquierda sentido antihorario</translation>
    </message>
    <message>
        <source>tint hue</source>
        <translation>teñir tono</translation>
    </message>
    <message>
        <source>brightness lighter darker exposure</source>
        <translation>brillo más claro más oscuro exposición</translation>
    </message>
    <message>
        <source>lighter darker exposure</source>
        <translation>más claro más oscuro exposición</translation>
    </message>
    <message>
        <source>fade dull</source>
        <translation>apagado mate</translation>
    </message>
    <message>
        <source>hide a face censor anonymous number plate mosaic blocks</source>
        <translation>ocultar cara censurar anónimo matrícula mosaico bloques</translation>
    </message>
    <message>
        <source>recolour change colour</source>
        <translation>recolorear cambiar color</translation>
    </message>
    <message>
        <source>grain</source>
        <translation>grano</translation>
    </message>
    <message>
        <source>manual guide documentation how</source>
        <translation>manual guía documentación cómo</translation>
    </message>
    <message>
        <source>keys shortcuts keyboard</source>
        <translation>teclas atajos teclado</translation>
    </message>
</context>
<context>
    <name>Textures</name>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Canvas</source>
        <translation>Lienzo</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Lino</translation>
    </message>
    <message>
        <source>Brick</source>
        <translation>Ladrillo</translation>
    </message>
    <message>
        <source>Stone</source>
        <translation>Piedra</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Arena</translation>
    </message>
    <message>
        <source>Wood</source>
        <translation>Madera</translation>
    </message>
    <message>
        <source>Weave</source>
        <translation>Tejido</translation>
    </message>
    <message>
        <source>Ripple</source>
        <translation>Ondulación</translation>
    </message>
    <message>
        <source>Leather</source>
        <translation>Cuero</translation>
    </message>
    <message>
        <source>Frosted glass</source>
        <translation>Vidrio esmerilado</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Esc or right button: drop</source>
        <translation>Esc o botón derecho: abandonar</translation>
    </message>
    <message>
        <source>Space: fix and go on · Esc: drop</source>
        <translation>Espacio: fijar y seguir · Esc: abandonar</translation>
    </message>
    <message>
        <source>Click: lay down · Space: fix and go on · Esc: drop</source>
        <translation>Clic: colocar · Espacio: fijar y seguir · Esc: abandonar</translation>
    </message>
    <message>
        <source>Space: corner · Enter: close · Esc: drop</source>
        <translation>Espacio: vértice · Intro: cerrar · Esc: abandonar</translation>
    </message>
    <message>
        <source>Click: corner · Enter or double click: close · Esc: drop</source>
        <translation>Clic: vértice · Intro o doble clic: cerrar · Esc: abandonar</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Tomar un color</translation>
    </message>
    <message>
        <source>Move the selection</source>
        <translation>Mover la selección</translation>
    </message>
    <message>
        <source>What moves</source>
        <translation>Qué se mueve</translation>
    </message>
    <message>
        <source>Move Selection Only</source>
        <translation>Mover solo la selección</translation>
    </message>
    <message>
        <source>Move Content Only</source>
        <translation>Mover solo el contenido</translation>
    </message>
    <message>
        <source>&amp;Use this intensity</source>
        <translation>&amp;Usar esta intensidad</translation>
    </message>
    <message>
        <source>Instead of the selection&apos;s pressure</source>
        <translation>En lugar de la presión de la selección</translation>
    </message>
    <message>
        <source>Opaque Intensity</source>
        <translation>Intensidad opaca</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Mode of selecting</source>
        <translation>Modo de selección</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Restar</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Shape of the selection</source>
        <translation>Forma de la selección</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipse</translation>
    </message>
    <message>
        <source>Polygon/Free hand</source>
        <translation>Polígono/a mano alzada</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>Píxel</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Presión</translation>
    </message>
    <message>
        <source>&amp;Move selection</source>
        <translation>&amp;Mover la selección</translation>
    </message>
    <message>
        <source>Move region / move pixels</source>
        <translation>Mover región / mover píxeles</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pincel</translation>
    </message>
    <message>
        <source>Mode of the brush</source>
        <translation>Modo del pincel</translation>
    </message>
    <message>
        <source>Current color</source>
        <translation>Color actual</translation>
    </message>
    <message>
        <source>Current stamp</source>
        <translation>Sello actual</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Oscurecer</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aclarar</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Enfocar</translation>
    </message>
    <message>
        <source>Soften</source>
        <translation>Suavizar</translation>
    </message>
    <message>
        <source>Soften (Overlay)</source>
        <translation>Suavizar (superpuesto)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensidad</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>What fills</source>
        <translation>Con qué se rellena</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerancia</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Free hand</source>
        <translation>A mano alzada</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Cuadrado</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Círculo</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polígono</translation>
    </message>
    <message>
        <source>Pol. sides</source>
        <translation>Lados del pol.</translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation>Aerógrafo</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Definición</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Sello</translation>
    </message>
    <message>
        <source>&amp;Mask color :</source>
        <translation>&amp;Color de máscara:</translation>
    </message>
    <message>
        <source>Use mask color</source>
        <translation>Usar color de máscara</translation>
    </message>
    <message>
        <source>Mask color</source>
        <translation>Color de máscara</translation>
    </message>
    <message>
        <source>&amp;Stamp mask</source>
        <translation>Máscara &amp;del sello</translation>
    </message>
    <message>
        <source>Current color stamp</source>
        <translation>Sello del color actual</translation>
    </message>
    <message>
        <source>&amp;Clear back</source>
        <translation>&amp;Borrar el fondo</translation>
    </message>
    <message>
        <source>Clear stamp track</source>
        <translation>Borrar el rastro del sello</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Degradado</translation>
    </message>
    <message>
        <source>Form of the gradient</source>
        <translation>Forma del degradado</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineal</translation>
    </message>
    <message>
        <source>Circular</source>
        <translation>Circular</translation>
    </message>
    <message>
        <source>First color</source>
        <translation>Primer color</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparente</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>Segundo color</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Amount %</source>
        <translation>Cantidad %</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Lápiz</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
</context>
<context>
    <name>velara::Appearance</name>
    <message>
        <source>As the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>High contrast, light</source>
        <translation>Alto contraste, claro</translation>
    </message>
    <message>
        <source>High contrast, dark</source>
        <translation>Alto contraste, oscuro</translation>
    </message>
</context>
<context>
    <name>velara::Bars</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer %1</translation>
    </message>
    <message>
        <source>Not available yet</source>
        <translation>Aún no disponible</translation>
    </message>
    <message>
        <source> (not available yet)</source>
        <translation> (aún no disponible)</translation>
    </message>
</context>
<context>
    <name>velara::Capture</name>
    <message>
        <source>Capture</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Waiting for the desktop&apos;s picture ...</source>
        <translation>Esperando la imagen del escritorio ...</translation>
    </message>
    <message>
        <source>the screen gave no picture</source>
        <translation>la pantalla no dio ninguna imagen</translation>
    </message>
</context>
<context>
    <name>velara::Documents</name>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
</context>
<context>
    <name>velara::FEffect</name>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostrar </translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Apply the effect</source>
        <translation>Aplicar el efecto</translation>
    </message>
</context>
<context>
    <name>velara::FGradient</name>
    <message>
        <source>The gradient</source>
        <translation>El degradado</translation>
    </message>
</context>
<context>
    <name>velara::FStamp</name>
    <message>
        <source>Stamp sub-Folder Not Found!</source>
        <translation>¡No se encontró la subcarpeta de sellos!</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Sello</translation>
    </message>
    <message>
        <source>Stamp files</source>
        <translation>Archivos de sellos</translation>
    </message>
    <message>
        <source>The chosen stamp</source>
        <translation>El sello elegido</translation>
    </message>
    <message>
        <source>&lt;Stamps&gt; subfolder not found.</source>
        <translation>No se encontró la subcarpeta &lt;Stamps&gt;.</translation>
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
        <translation>Optimizada</translation>
    </message>
    <message>
        <source>Original, above the optimized</source>
        <translation>Original, sobre la optimizada</translation>
    </message>
    <message>
        <source>Optimized, below the original</source>
        <translation>Optimizada, bajo el original</translation>
    </message>
    <message>
        <source>Customized Save Options </source>
        <translation>Opciones de guardado personalizadas </translation>
    </message>
    <message>
        <source>Files of this format have no place for it</source>
        <translation>Los archivos de este formato no tienen sitio para ello</translation>
    </message>
    <message>
        <source>Enter value between 1 to 99 !</source>
        <translation>¡Escriba un valor entre 1 y 99!</translation>
    </message>
    <message>
        <source>Please Choose a higher image format!</source>
        <translation>¡Elija un formato de imagen superior!</translation>
    </message>
    <message>
        <source>The current format cannot be applied to the image!</source>
        <translation>¡El formato actual no se puede aplicar a la imagen!</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written%2.</source>
        <translation>No se puede escribir %1%2.</translation>
    </message>
    <message>
        <source>%L1 bytes</source>
        <translation>%L1 bytes</translation>
    </message>
    <message>
        <source>%1 % of the original file</source>
        <translation>%1 % del archivo original</translation>
    </message>
    <message>
        <source>no loss</source>
        <translation>sin pérdida</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>No quality makes it as small as %1 KB.</source>
        <translation>Ninguna calidad lo reduce a %1 KB.</translation>
    </message>
    <message>
        <source>No number of colors makes it as small as %1 KB.</source>
        <translation>Ningún número de colores lo reduce a %1 KB.</translation>
    </message>
    <message>
        <source>Save Optimized As</source>
        <translation>Guardar optimizada como</translation>
    </message>
    <message>
        <source>File format</source>
        <translation>Formato del archivo</translation>
    </message>
    <message>
        <source>Choose a format</source>
        <translation>Elija un formato</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Formato</translation>
    </message>
    <message>
        <source>&amp;All formats ...</source>
        <translation>&amp;Todos los formatos ...</translation>
    </message>
    <message>
        <source>Size and loss of this picture in every format</source>
        <translation>Tamaño y pérdida de esta imagen en cada formato</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>Según el formato</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Tramado</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>&amp;Dither</source>
        <translation>T&amp;ramado</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Modo</translation>
    </message>
    <message>
        <source>Flip &amp;horizontal</source>
        <translation>&amp;Voltear en horizontal</translation>
    </message>
    <message>
        <source>Flip &amp;vertical</source>
        <translation>Voltear &amp;en vertical</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>&amp;Invertir</translation>
    </message>
    <message>
        <source>I&amp;nterlaced</source>
        <translation>E&amp;ntrelazado</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Calidad JPEG</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Custom  1 To 99</source>
        <translation>Libre, 1 a 99</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>&amp;Calidad</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Tamaño del archivo</translation>
    </message>
    <message>
        <source>Fit to so many KB</source>
        <translation>Ajustar a tantos KB</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Fit &amp;to</source>
        <translation>&amp;Ajustar a</translation>
    </message>
    <message>
        <source>Camera data</source>
        <translation>Datos de la cámara</translation>
    </message>
    <message>
        <source>&amp;Keep camera data</source>
        <translation>Conservar &amp;los datos de la cámara</translation>
    </message>
    <message>
        <source>without the pla&amp;ce</source>
        <translation>&amp;sin el lugar</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profundidad</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Ambas</translation>
    </message>
    <message>
        <source>Exact size and loss</source>
        <translation>Tamaño y pérdida exactos</translation>
    </message>
    <message>
        <source>The file is being written</source>
        <translation>Se está escribiendo el archivo</translation>
    </message>
    <message numerus="yes">
        <source>%n colors</source>
        <translation>
            <numerusform>%n color</numerusform>
            <numerusform>%n colores</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::FolderRun</name>
    <message>
        <source>
It ended before its time.</source>
        <translation>
Terminó antes de tiempo.</translation>
    </message>
</context>
<context>
    <name>velara::FrameRequests</name>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>No existe la acción «%1».</translation>
    </message>
    <message>
        <source> can&apos;t be read: it is no file of this computer</source>
        <translation> no se puede leer: no es un archivo de este equipo</translation>
    </message>
</context>
<context>
    <name>velara::MaskChoice</name>
    <message>
        <source>Mask color</source>
        <translation>Color de máscara</translation>
    </message>
    <message>
        <source>What has this color becomes transparent</source>
        <translation>Lo que tiene este color se vuelve transparente</translation>
    </message>
</context>
<context>
    <name>velara::PreviewPane</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>There is no permission to look into it.</source>
        <translation>No hay permiso para examinarla.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Leyendo ...</translation>
    </message>
    <message>
        <source>No picture is selected.</source>
        <translation>No hay ninguna imagen elegida.</translation>
    </message>
    <message>
        <source>Not a picture.</source>
        <translation>No es una imagen.</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 píxeles</translation>
    </message>
</context>
<context>
    <name>velara::Recipes</name>
    <message>
        <source>Recipe (*.recipe)</source>
        <translation>Receta (*.recipe)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Nothing was done to this picture yet.</source>
        <translation>Aún no se ha hecho nada con esta imagen.</translation>
    </message>
    <message>
        <source>All of this was made by hand: there is nothing that could be done to another picture.</source>
        <translation>Todo esto se hizo a mano: no hay nada que se pueda aplicar a otra imagen.</translation>
    </message>
    <message>
        <source>%1 of %2 steps were made by hand, and can&apos;t be done to another picture:
%3</source>
        <translation>%1 de %2 pasos se hicieron a mano y no se pueden aplicar a otra imagen:
%3</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Receta</translation>
    </message>
    <message>
        <source>&amp;Leave them out</source>
        <translation>&amp;Dejarlos fuera</translation>
    </message>
    <message>
        <source>The command is on the clipboard.</source>
        <translation>El comando está en el portapapeles.</translation>
    </message>
    <message>
        <source>Save recipe</source>
        <translation>Guardar receta</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Guardado como %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation>No se puede escribir %1.</translation>
    </message>
    <message>
        <source>Run recipe</source>
        <translation>Ejecutar receta</translation>
    </message>
    <message>
        <source>: there is no step in it</source>
        <translation>: no contiene ningún paso</translation>
    </message>
    <message>
        <source>The picture is as it was. The recipe %1 ended:
%2</source>
        <translation>La imagen está como estaba. La receta %1 terminó:
%2</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message numerus="yes">
        <source>Run on %n pictures.</source>
        <translation>
            <numerusform>Ejecutada en %n imagen.</numerusform>
            <numerusform>Ejecutada en %n imágenes.</numerusform>
        </translation>
    </message>
    <message>
        <source>These pictures are as they were:
</source>
        <translation>Estas imágenes están como estaban:
</translation>
    </message>
    <message>
        <source>No other picture is open.</source>
        <translation>No hay otra imagen abierta.</translation>
    </message>
    <message>
        <source>What was done to %1</source>
        <translation>Lo que se hizo con %1</translation>
    </message>
    <message>
        <source>Another file ...</source>
        <translation>Otro archivo ...</translation>
    </message>
    <message>
        <source>Choose a recipe</source>
        <translation>Elija una receta</translation>
    </message>
    <message>
        <source>This recipe can&apos;t be run:
</source>
        <translation>Esta receta no se puede ejecutar:
</translation>
    </message>
</context>
<context>
    <name>velara::Recovery</name>
    <message>
        <source>Changed on %1</source>
        <translation>Modificado el %1</translation>
    </message>
    <message>
        <source>1 step</source>
        <translation>1 paso</translation>
    </message>
    <message>
        <source>texts that are not merged yet</source>
        <translation>textos aún no combinados</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>No hay nada que recuperar.</translation>
    </message>
    <message>
        <source>Discard the unsaved changes of %1?
They can&apos;t be recovered after that.</source>
        <translation>¿Descartar los cambios sin guardar de %1?
Después no se podrán recuperar.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message numerus="yes">
        <source>%n steps</source>
        <translation>
            <numerusform>%n paso</numerusform>
            <numerusform>%n pasos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n imagen</numerusform>
            <numerusform>%n imágenes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::SaneScanner</name>
    <message>
        <source>The program velara-scan is missing.</source>
        <translation>Falta el programa velara-scan.</translation>
    </message>
    <message>
        <source>The scanner&apos;s driver has failed.</source>
        <translation>Ha fallado el controlador del escáner.</translation>
    </message>
</context>
<context>
    <name>velara::SaveDialog</name>
    <message>
        <source>&quot;%1&quot; has the ending of another kind of file.</source>
        <translation>«%1» lleva la extensión de otro tipo de archivo.</translation>
    </message>
    <message>
        <source>Save as &quot;%1&quot;</source>
        <translation>Guardar como «%1»</translation>
    </message>
    <message>
        <source>Keep &quot;%1&quot;</source>
        <translation>Conservar «%1»</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ya existe.
¿Desea reemplazarlo?</translation>
    </message>
</context>
<context>
    <name>velara::Startup</name>
    <message>
        <source>Velara Studio is already running!</source>
        <translation>¡Velara Studio ya se está ejecutando!</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be written to.
Steps back stay in memory, as many as fit, and settings will not be kept.</source>
        <translation>No se puede escribir en la carpeta «%1».
Los pasos atrás quedan en memoria, tantos como quepan, y los ajustes no se conservarán.</translation>
    </message>
</context>
<context>
    <name>velara::fAboutFacts</name>
    <message>
        <source>picture files</source>
        <translation>archivos de imagen</translation>
    </message>
    <message>
        <source>GIF and palettes</source>
        <translation>GIF y paletas</translation>
    </message>
    <message>
        <source>metafiles</source>
        <translation>metaarchivos</translation>
    </message>
    <message>
        <source>scanners</source>
        <translation>escáneres</translation>
    </message>
    <message>
        <source>printers</source>
        <translation>impresoras</translation>
    </message>
    <message>
        <source>vector arithmetic</source>
        <translation>aritmética vectorial</translation>
    </message>
    <message>
        <source>the cage of the decoders</source>
        <translation>la jaula de los decodificadores</translation>
    </message>
    <message>
        <source>icons</source>
        <translation>iconos</translation>
    </message>
    <message>
        <source>windows</source>
        <translation>ventanas</translation>
    </message>
    <message>
        <source>&lt;b&gt;Velara Studio %1&lt;/b&gt;&lt;p&gt;Free software under the GNU General Public License, version 2 or later, without any warranty.&lt;/p&gt;&lt;p&gt;It stands on&lt;/p&gt;</source>
        <translation>&lt;b&gt;Velara Studio %1&lt;/b&gt;&lt;p&gt;Software libre bajo la Licencia Pública General de GNU, versión 2 o posterior, sin garantía alguna.&lt;/p&gt;&lt;p&gt;Se basa en&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Version, license and libraries</source>
        <translation>Versión, licencia y bibliotecas</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>velara::fAcquire</name>
    <message>
        <source>Acquire</source>
        <translation>Adquirir</translation>
    </message>
    <message>
        <source>Select S&amp;ource ...</source>
        <translation>&amp;Elegir origen ...</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>Progreso del escaneo</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>E&amp;scanear</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>No source</source>
        <translation>Sin origen</translation>
    </message>
    <message>
        <source>Looking for scanners ...</source>
        <translation>Buscando escáneres ...</translation>
    </message>
    <message>
        <source>no scanner was found</source>
        <translation>no se encontró ningún escáner</translation>
    </message>
    <message>
        <source>Asking the scanner ...</source>
        <translation>Consultando el escáner ...</translation>
    </message>
    <message>
        <source>Scanning ...</source>
        <translation>Escaneando ...</translation>
    </message>
    <message>
        <source>Scanning page %1 ...</source>
        <translation>Escaneando la página %1 ...</translation>
    </message>
    <message>
        <source>The scanner says: </source>
        <translation>El escáner dice: </translation>
    </message>
</context>
<context>
    <name>velara::fAssociation</name>
    <message>
        <source>File Association</source>
        <translation>Asociación de archivos</translation>
    </message>
    <message>
        <source>The picture formats that Velara Studio knows. Which program opens
a file is chosen in the settings of your desktop.</source>
        <translation>Los formatos de imagen que conoce Velara Studio. Qué programa abre
un archivo se elige en los ajustes de su escritorio.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formatos</translation>
    </message>
</context>
<context>
    <name>velara::fBed</name>
    <message>
        <source>Preview of the scanner&apos;s bed</source>
        <translation>Vista previa del cristal del escáner</translation>
    </message>
</context>
<context>
    <name>velara::fBrowse</name>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Pictures of the folder</source>
        <translation>Imágenes de la carpeta</translation>
    </message>
    <message>
        <source>Browse For Graphic Filles</source>
        <translation>Examinar archivos gráficos</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Inicio</translation>
    </message>
    <message>
        <source>Last folders</source>
        <translation>Últimas carpetas</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Elegido</translation>
    </message>
</context>
<context>
    <name>velara::fCanvas</name>
    <message>
        <source>Canvas size</source>
        <translation>Tamaño del lienzo</translation>
    </message>
    <message>
        <source>Proportions</source>
        <translation>Proporciones</translation>
    </message>
    <message>
        <source>Defined</source>
        <translation>Definido</translation>
    </message>
    <message>
        <source>Choose a step</source>
        <translation>Elija un paso</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>What is Canvas Size?</source>
        <translation>¿Qué es el tamaño del lienzo?</translation>
    </message>
    <message>
        <source>The canvas is the area that the picture stands on. A larger canvas adds black room around the picture, a smaller one cuts its edges; the pixels themselves keep their size. Drag the picture, or press an arrow, to say where it stands.</source>
        <translation>El lienzo es la superficie sobre la que está la imagen. Un lienzo mayor añade espacio negro alrededor de la imagen, uno menor recorta sus bordes; los píxeles conservan su tamaño. Arrastre la imagen, o pulse una flecha, para indicar dónde va.</translation>
    </message>
</context>
<context>
    <name>velara::fCanvasView</name>
    <message>
        <source>Canvas</source>
        <translation>Lienzo</translation>
    </message>
    <message>
        <source>Picture on the canvas</source>
        <translation>Imagen sobre el lienzo</translation>
    </message>
</context>
<context>
    <name>velara::fCapture</name>
    <message>
        <source>Capture Screen</source>
        <translation>Capturar la pantalla</translation>
    </message>
    <message>
        <source>How to capture</source>
        <translation>Cómo capturar</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>&amp;Capture</source>
        <translation>&amp;Capturar</translation>
    </message>
    <message>
        <source>C&amp;ustom</source>
        <translation>&amp;Personalizado</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>The whole screen</source>
        <translation>Toda la pantalla</translation>
    </message>
    <message>
        <source>A rectangle of the screen</source>
        <translation>Un rectángulo de la pantalla</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>Desktop means the main screen where you go through before opening any windows</source>
        <translation>El escritorio es la pantalla principal que se ve antes de abrir ninguna ventana</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Primer plano</translation>
    </message>
    <message>
        <source>Foreground means the Current window you are working with i.e, The Velara&apos;s Studio Environment.</source>
        <translation>El primer plano es la ventana con la que está trabajando, es decir, Velara Studio.</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Background means any windows behind the current active window including your Desktop. Desktop is the background if there is no other visible windows behind Velara&apos;s Studio</source>
        <translation>El fondo son las ventanas que hay detrás de la ventana activa, incluido el escritorio. Es el escritorio si no hay otras ventanas visibles detrás de Velara Studio</translation>
    </message>
    <message>
        <source>What to capture</source>
        <translation>Qué capturar</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n segundo</numerusform>
            <numerusform>%n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>At once</source>
        <translation>De inmediato</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>&amp;Retardo</translation>
    </message>
    <message>
        <source>With the &amp;pointer</source>
        <translation>Con &amp;el puntero</translation>
    </message>
</context>
<context>
    <name>velara::fCaptureRectangle</name>
    <message>
        <source>Capture Rectangle</source>
        <translation>Capturar un rectángulo</translation>
    </message>
    <message>
        <source>Drag a rectangle; Esc leaves</source>
        <translation>Trace un rectángulo; Esc para salir</translation>
    </message>
    <message>
        <source>Drag a rectangle; with Shift it stays, with grips</source>
        <translation>Trace un rectángulo; con Mayús se queda, con tiradores</translation>
    </message>
    <message>
        <source>Enter: all, or the rectangle</source>
        <translation>Intro: todo, o el rectángulo</translation>
    </message>
    <message>
        <source>Esc: leave</source>
        <translation>Esc: salir</translation>
    </message>
    <message>
        <source>W: the window below the pointer</source>
        <translation>W: la ventana bajo el puntero</translation>
    </message>
</context>
<context>
    <name>velara::fCellGrid</name>
    <message>
        <source>Colors</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Cell %1: %2</source>
        <translation>Casilla %1: %2</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
</context>
<context>
    <name>velara::fColorButton</name>
    <message>
        <source>Red %1, green %2, blue %3</source>
        <translation>Rojo %1, verde %2, azul %3</translation>
    </message>
</context>
<context>
    <name>velara::fColorDepth</name>
    <message>
        <source>2 Colors (1 Bit)</source>
        <translation>2 colores (1 bit)</translation>
    </message>
    <message>
        <source>16 Colors (4 Bit)</source>
        <translation>16 colores (4 bits)</translation>
    </message>
    <message>
        <source>256 Colors (8 Bit)</source>
        <translation>256 colores (8 bits)</translation>
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
        <translation>32.000 colores (24 bits)</translation>
    </message>
    <message>
        <source>64,000 Colors (24 Bit)</source>
        <translation>64.000 colores (24 bits)</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Optimized</source>
        <translation>Optimizada</translation>
    </message>
    <message>
        <source>Image Color Depth</source>
        <translation>Profundidad de color de la imagen</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Select an option</source>
        <translation>Elija una opción</translation>
    </message>
    <message>
        <source>Color depth</source>
        <translation>Profundidad de color</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Full size</source>
        <translation>Tamaño completo</translation>
    </message>
    <message>
        <source>1/%1 of the size</source>
        <translation>1/%1 del tamaño</translation>
    </message>
    <message>
        <source>Optimized to</source>
        <translation>Optimizada a</translation>
    </message>
    <message>
        <source>Send the Optimized Image to </source>
        <translation>Enviar la imagen optimizada a </translation>
    </message>
    <message>
        <source>Optimized Saver </source>
        <translation>Guardado optimizado </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
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
        <translation>Rojo %1, verde %2, azul %3</translation>
    </message>
</context>
<context>
    <name>velara::fDisplay</name>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>%1, %2: red %3, green %4, blue %5</source>
        <translation>%1, %2: rojo %3, verde %4, azul %5</translation>
    </message>
</context>
<context>
    <name>velara::fEffectsPage</name>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Apply the effect</source>
        <translation>Aplicar el efecto</translation>
    </message>
    <message>
        <source>Apply the file as a texture</source>
        <translation>Aplicar el archivo como textura</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>%1: a double click applies it</source>
        <translation>%1: un doble clic lo aplica</translation>
    </message>
    <message>
        <source>Effects, up and down</source>
        <translation>Efectos, arriba y abajo</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>A&amp;mount</source>
        <translation>&amp;Cantidad</translation>
    </message>
    <message>
        <source>Texture files</source>
        <translation>Archivos de textura</translation>
    </message>
    <message>
        <source>Fol&amp;der...</source>
        <translation>C&amp;arpeta...</translation>
    </message>
    <message>
        <source>Choose the folder of the texture files</source>
        <translation>Elija la carpeta de los archivos de textura</translation>
    </message>
    <message>
        <source>No texture files in %1</source>
        <translation>No hay archivos de textura en %1</translation>
    </message>
    <message>
        <source>Texture files of %1</source>
        <translation>Archivos de textura de %1</translation>
    </message>
    <message>
        <source>There is no picture open.</source>
        <translation>No hay ninguna imagen abierta.</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Textura</translation>
    </message>
    <message>
        <source>%1 can&apos;t be used as a texture: %2</source>
        <translation>%1 no se puede usar como textura: %2</translation>
    </message>
</context>
<context>
    <name>velara::fFilter</name>
    <message>
        <source>Working. Esc ends it.</source>
        <translation>Trabajando. Esc lo detiene.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>%1 color</source>
        <translation>Color %1</translation>
    </message>
    <message>
        <source>Banks</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>%1 comes from</source>
        <translation>%1 procede de</translation>
    </message>
    <message>
        <source>%1 comes from %2</source>
        <translation>%1 procede de %2</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invertir</translation>
    </message>
    <message>
        <source>Invert %1</source>
        <translation>Invertir %1</translation>
    </message>
    <message>
        <source>Kill</source>
        <translation>Suprimir</translation>
    </message>
    <message>
        <source>Kill %1</source>
        <translation>Suprimir %1</translation>
    </message>
    <message>
        <source>Glass</source>
        <translation>Vidrio</translation>
    </message>
    <message>
        <source>%1 glass</source>
        <translation>Vidrio %1</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Fuerza</translation>
    </message>
    <message>
        <source>Curtain Effects</source>
        <translation>Efectos de cortina</translation>
    </message>
    <message>
        <source>%1 curtain</source>
        <translation>Cortina %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Real Time</source>
        <translation>Tiempo real</translation>
    </message>
    <message>
        <source>Runs the filter on the picture and closes</source>
        <translation>Aplica el filtro a la imagen y cierra</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Before: click to place the center</source>
        <translation>Antes: haga clic para situar el centro</translation>
    </message>
    <message>
        <source>Before: click to pick a color</source>
        <translation>Antes: haga clic para tomar un color</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>After, pixel for pixel</source>
        <translation>Después, píxel a píxel</translation>
    </message>
    <message>
        <source>Drag it, or click in a picture beside it, to see another part</source>
        <translation>Arrástrelo, o haga clic en una imagen de al lado, para ver otra parte</translation>
    </message>
</context>
<context>
    <name>velara::fFolderRun</name>
    <message>
        <source>Run on a Folder</source>
        <translation>Ejecutar en una carpeta</translation>
    </message>
    <message>
        <source>Add a picture</source>
        <translation>Añadir una imagen</translation>
    </message>
    <message>
        <source>Add a folder of pictures</source>
        <translation>Añadir una carpeta de imágenes</translation>
    </message>
    <message>
        <source>-done</source>
        <translation>-hecho</translation>
    </message>
    <message>
        <source>Where the new files go</source>
        <translation>Adónde van los archivos nuevos</translation>
    </message>
    <message>
        <source>Go &amp;on</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>Pau&amp;se</source>
        <translation>&amp;Pausa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Every original is replaced by its result. They can&apos;t be brought back.</source>
        <translation>Cada original se reemplaza por su resultado. No se podrán recuperar.</translation>
    </message>
    <message>
        <source>&amp;Replace the originals</source>
        <translation>&amp;Reemplazar los originales</translation>
    </message>
    <message>
        <source>%1 of about %2</source>
        <translation>%1 de unos %2</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 hechas</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1 omitidas</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 con error</translation>
    </message>
    <message>
        <source>%1 a minute</source>
        <translation>%1 por minuto</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>quedan %1</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pausa</translation>
    </message>
    <message>
        <source>%1 can&apos;t be started: %2</source>
        <translation>No se puede iniciar %1: %2</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>Registro: %1</translation>
    </message>
    <message>
        <source>It is still at work.</source>
        <translation>Sigue trabajando.</translation>
    </message>
    <message>
        <source>&amp;Stop it and close</source>
        <translation>&amp;Detenerlo y cerrar</translation>
    </message>
    <message>
        <source>Leave it, and skip the picture</source>
        <translation>Dejarlo y omitir la imagen</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Reemplazarlo</translation>
    </message>
    <message>
        <source>Add a number to the new name</source>
        <translation>Añadir un número al nombre nuevo</translation>
    </message>
    <message>
        <source>Replace it if it is older than the picture</source>
        <translation>Reemplazarlo si es más antiguo que la imagen</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Receta</translation>
    </message>
    <message>
        <source>R&amp;ecipe</source>
        <translation>&amp;Receta</translation>
    </message>
    <message>
        <source>Pictures and folders</source>
        <translation>Imágenes y carpetas</translation>
    </message>
    <message>
        <source>with the folders &amp;below</source>
        <translation>con &amp;las subcarpetas</translation>
    </message>
    <message>
        <source>With the folders below</source>
        <translation>Con las subcarpetas</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Quitar de la lista</translation>
    </message>
    <message>
        <source>&amp;Picture ...</source>
        <translation>&amp;Imagen ...</translation>
    </message>
    <message>
        <source>&amp;Folder ...</source>
        <translation>C&amp;arpeta ...</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Añadir una carpeta</translation>
    </message>
    <message>
        <source>Pict&amp;ures</source>
        <translation>I&amp;mágenes</translation>
    </message>
    <message>
        <source>Target folder</source>
        <translation>Carpeta de destino</translation>
    </message>
    <message>
        <source>F&amp;older ...</source>
        <translation>Carp&amp;eta ...</translation>
    </message>
    <message>
        <source>Choose the target folder</source>
        <translation>Elija la carpeta de destino</translation>
    </message>
    <message>
        <source>o&amp;ver the originals, which are lost</source>
        <translation>&amp;sobre los originales, que se pierden</translation>
    </message>
    <message>
        <source>Over the originals, which are lost</source>
        <translation>Sobre los originales, que se pierden</translation>
    </message>
    <message>
        <source>Names of the new files</source>
        <translation>Nombres de los archivos nuevos</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Each as it is</source>
        <translation>Cada una como es</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Where a file has the name already</source>
        <translation>Si un archivo ya tiene ese nombre</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>Cali&amp;dad</translation>
    </message>
    <message>
        <source>&amp;Target</source>
        <translation>Des&amp;tino</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Nombres</translation>
    </message>
    <message>
        <source>Form&amp;at</source>
        <translation>&amp;Formato</translation>
    </message>
    <message>
        <source>E&amp;xisting file</source>
        <translation>Arc&amp;hivo existente</translation>
    </message>
    <message>
        <source>Pictures done</source>
        <translation>Imágenes hechas</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Pictures that failed; Enter or a double click opens one</source>
        <translation>Imágenes con error; Intro o un doble clic abre una</translation>
    </message>
    <message>
        <source>A double click opens the picture</source>
        <translation>Un doble clic abre la imagen</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>E&amp;jecutar</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Cancel or close</source>
        <translation>Cancelar o cerrar</translation>
    </message>
    <message>
        <source>Pictures that fa&amp;iled</source>
        <translation>Imá&amp;genes con error</translation>
    </message>
    <message>
        <source>{name}  the picture&apos;s own name
{ext}  the ending of its format
{n:04}  its number, with four digits
{dir}  its folder below the one that was chosen
{width}, {height}  its size in pixels
Such as {name}-web.{ext}</source>
        <translation>{name}  el nombre de la imagen
{ext}  la extensión de su formato
{n:04}  su número, con cuatro cifras
{dir}  su carpeta bajo la elegida
{width}, {height}  su tamaño en píxeles
Por ejemplo {name}-web.{ext}</translation>
    </message>
</context>
<context>
    <name>velara::fGeometry</name>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation>Tamaño mínimo: 2 x 2</translation>
    </message>
    <message>
        <source>Maximum size: 256 megapixels</source>
        <translation>Tamaño máximo: 256 megapíxeles</translation>
    </message>
</context>
<context>
    <name>velara::fHelp</name>
    <message>
        <source>What to do, and the keys for it</source>
        <translation>Qué hacer, y las teclas para ello</translation>
    </message>
    <message>
        <source>Move the picture in its window</source>
        <translation>Mover la imagen en su ventana</translation>
    </message>
    <message>
        <source>Middle button, or the hand (H)</source>
        <translation>Botón central, o la mano (H)</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>Desplazarse arriba y abajo</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Rueda</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>Desplazarse a los lados</translation>
    </message>
    <message>
        <source>Shift + wheel</source>
        <translation>Mayús + rueda</translation>
    </message>
    <message>
        <source>Zoom about the pointer</source>
        <translation>Ampliar en torno al puntero</translation>
    </message>
    <message>
        <source>Ctrl + wheel</source>
        <translation>Ctrl + rueda</translation>
    </message>
    <message>
        <source>Drop what is under way</source>
        <translation>Abandonar lo que está en curso</translation>
    </message>
    <message>
        <source>Esc, or the right button</source>
        <translation>Esc, o el botón derecho</translation>
    </message>
    <message>
        <source>Draw without a mouse: move a crosshair by a pixel, or ten</source>
        <translation>Dibujar sin ratón: mover una retícula un píxel, o diez</translation>
    </message>
    <message>
        <source>Arrow keys, with Shift</source>
        <translation>Flechas, con Mayús</translation>
    </message>
    <message>
        <source>Press at the crosshair, and release</source>
        <translation>Pulsar en la retícula, y soltar</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Fix a text, a paste or moved pixels, and go on</source>
        <translation>Fijar un texto, un pegado o píxeles movidos, y continuar</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Corner of a polygon</source>
        <translation>Vértice de un polígono</translation>
    </message>
    <message>
        <source>Click, or Space while dragging</source>
        <translation>Clic, o Espacio al arrastrar</translation>
    </message>
    <message>
        <source>Close a polygon</source>
        <translation>Cerrar un polígono</translation>
    </message>
    <message>
        <source>Enter, or a double click</source>
        <translation>Intro, o un doble clic</translation>
    </message>
    <message>
        <source>To the tools and their settings, and back</source>
        <translation>A las herramientas y sus ajustes, y de vuelta</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Qué hacer</translation>
    </message>
    <message>
        <source>Mouse and keys</source>
        <translation>Ratón y teclas</translation>
    </message>
    <message>
        <source>On a picture</source>
        <translation>Sobre una imagen</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menús</translation>
    </message>
    <message>
        <source>Keys and Mouse</source>
        <translation>Teclas y ratón</translation>
    </message>
</context>
<context>
    <name>velara::fHexBox</name>
    <message>
        <source>Color code</source>
        <translation>Código de color</translation>
    </message>
    <message>
        <source>#rrggbb, #rgb or a name such as teal; Enter takes it</source>
        <translation>#rrggbb, #rgb o un nombre como teal; Intro lo acepta</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color. Enter it as #rrggbb, as #rgb or by its name.</source>
        <translation>«%1» no es un color. Escríbalo como #rrggbb, #rgb o por su nombre.</translation>
    </message>
</context>
<context>
    <name>velara::fHistory</name>
    <message>
        <source>Steps, oldest first</source>
        <translation>Pasos, del más antiguo al más reciente</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Al iniciar</translation>
    </message>
    <message>
        <source>A change</source>
        <translation>Un cambio</translation>
    </message>
    <message>
        <source>painted by hand</source>
        <translation>pintado a mano</translation>
    </message>
    <message>
        <source>
in a selection</source>
        <translation>
en una selección</translation>
    </message>
    <message>
        <source>
This step is not kept any more.</source>
        <translation>
Este paso ya no se conserva.</translation>
    </message>
    <message>
        <source>All steps</source>
        <translation>Todos los pasos</translation>
    </message>
    <message>
        <source>From this step on</source>
        <translation>Desde este paso</translation>
    </message>
    <message>
        <source>&amp;Copy as command</source>
        <translation>&amp;Copiar como comando</translation>
    </message>
    <message>
        <source>&amp;Save recipe ...</source>
        <translation>&amp;Guardar receta ...</translation>
    </message>
    <message>
        <source>&amp;Run from here on the other open pictures</source>
        <translation>&amp;Repetir desde aquí en las demás imágenes abiertas</translation>
    </message>
</context>
<context>
    <name>velara::fIcon</name>
    <message>
        <source>Extract Icon</source>
        <translation>Extraer un icono</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
</context>
<context>
    <name>velara::fIconBar</name>
    <message>
        <source>What is in the frame, magnified</source>
        <translation>Lo que hay en el marco, ampliado</translation>
    </message>
    <message>
        <source>Icon Maker</source>
        <translation>Creador de iconos</translation>
    </message>
    <message>
        <source>Drag the frame over the picture.
Arrow keys move it by a pixel.</source>
        <translation>Arrastre el marco sobre la imagen.
Las flechas lo mueven un píxel.</translation>
    </message>
    <message>
        <source>Icons taken</source>
        <translation>Iconos tomados</translation>
    </message>
    <message>
        <source>Icons taken:</source>
        <translation>Iconos tomados:</translation>
    </message>
    <message>
        <source>Size of the icon: + and -</source>
        <translation>Tamaño del icono: + y -</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Tomar</translation>
    </message>
    <message>
        <source>Take the icon: Enter</source>
        <translation>Tomar el icono: Intro</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Back to the icon extractor: Esc</source>
        <translation>Volver al extractor de iconos: Esc</translation>
    </message>
</context>
<context>
    <name>velara::fIconBrowse</name>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Icon Extractor: Select Folder</source>
        <translation>Extractor de iconos: elegir carpeta</translation>
    </message>
    <message>
        <source>The chosen folder</source>
        <translation>La carpeta elegida</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
</context>
<context>
    <name>velara::fIconMaker</name>
    <message>
        <source>Icon Maker</source>
        <translation>Creador de iconos</translation>
    </message>
    <message>
        <source>Drag the frame of the icon; Enter takes, Esc closes</source>
        <translation>Arrastre el marco del icono; Intro toma, Esc cierra</translation>
    </message>
</context>
<context>
    <name>velara::fIconPicture</name>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>16 to 256 in one &amp;file</source>
        <translation>&amp;De 16 a 256 en un archivo</translation>
    </message>
    <message>
        <source>Select Required Options</source>
        <translation>Elija las opciones deseadas</translation>
    </message>
    <message>
        <source>Use &amp;Mask Color</source>
        <translation>&amp;Usar color de máscara</translation>
    </message>
    <message>
        <source>Icon Preview</source>
        <translation>Vista previa del icono</translation>
    </message>
    <message>
        <source>&amp;Save As</source>
        <translation>&amp;Guardar como</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Ancho</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>A&amp;lto</translation>
    </message>
    <message>
        <source>A click takes the mask color from here</source>
        <translation>Un clic toma de aquí el color de máscara</translation>
    </message>
    <message>
        <source>There is no picture open.</source>
        <translation>No hay ninguna imagen abierta.</translation>
    </message>
    <message>
        <source>Width and height are whole numbers from 1 to %1.</source>
        <translation>El ancho y el alto son números enteros de 1 a %1.</translation>
    </message>
    <message>
        <source>%1 times as large</source>
        <translation>%1 veces mayor</translation>
    </message>
    <message>
        <source>Save Icon as</source>
        <translation>Guardar icono como</translation>
    </message>
    <message>
        <source>Icon File</source>
        <translation>Archivo de icono</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation>No se puede escribir %1.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Guardado: %1</translation>
    </message>
</context>
<context>
    <name>velara::fIconSeries</name>
    <message>
        <source>Custom Icon Extractor</source>
        <translation>Extractor de iconos libre</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>Use Mas&amp;k Color</source>
        <translation>Usar color de más&amp;cara</translation>
    </message>
    <message>
        <source>What to capture</source>
        <translation>Qué capturar</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Primer plano</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>Captures the screen and cuts icons out of it</source>
        <translation>Captura la pantalla y recorta iconos de ella</translation>
    </message>
    <message>
        <source>Icons cut out</source>
        <translation>Iconos recortados</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icono</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>&amp;Extract Icons of the Selected Images to</source>
        <translation>&amp;Extraer los iconos de las imágenes elegidas en</translation>
    </message>
    <message>
        <source>Folder of the icons</source>
        <translation>Carpeta de los iconos</translation>
    </message>
    <message>
        <source>....</source>
        <translation>....</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>Gua&amp;rdar</translation>
    </message>
    <message>
        <source>Select the folder</source>
        <translation>Elija la carpeta</translation>
    </message>
    <message>
        <source>No Images to extract!</source>
        <translation>¡No hay imágenes que extraer!</translation>
    </message>
    <message>
        <source>Folder does not Exists! Please Enter a valid folder path</source>
        <translation>¡La carpeta no existe! Escriba una ruta de carpeta válida</translation>
    </message>
    <message numerus="yes">
        <source>%n icon Files Saved!</source>
        <translation>
            <numerusform>¡%n archivo de icono guardado!</numerusform>
            <numerusform>¡%n archivos de iconos guardados!</numerusform>
        </translation>
    </message>
    <message>
        <source>Not written: %1</source>
        <translation>No escrito: %1</translation>
    </message>
    <message numerus="yes">
        <source> and %n more</source>
        <translation>
            <numerusform> y %n más</numerusform>
            <numerusform> y %n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::fImage</name>
    <message>
        <source>Picture window</source>
        <translation>Ventana de imagen</translation>
    </message>
    <message>
        <source>Horizontal scroll bar</source>
        <translation>Barra de desplazamiento horizontal</translation>
    </message>
    <message>
        <source>Vertical scroll bar</source>
        <translation>Barra de desplazamiento vertical</translation>
    </message>
    <message>
        <source>This image has changed.
Do you want to save it ?</source>
        <translation>Esta imagen ha cambiado.
¿Desea guardarla?</translation>
    </message>
</context>
<context>
    <name>velara::fLayerCanvas</name>
    <message>
        <source>Picture with its texts</source>
        <translation>Imagen con sus textos</translation>
    </message>
    <message>
        <source>Text %1</source>
        <translation>Texto %1</translation>
    </message>
</context>
<context>
    <name>velara::fLayerList</name>
    <message>
        <source>Texts</source>
        <translation>Textos</translation>
    </message>
    <message>
        <source>Texts, up and down</source>
        <translation>Textos, arriba y abajo</translation>
    </message>
    <message>
        <source>Empty text</source>
        <translation>Texto vacío</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Mostrar %1</translation>
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
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Subrayado</translation>
    </message>
    <message>
        <source>Strike out</source>
        <translation>Tachado</translation>
    </message>
    <message>
        <source>Save for Web</source>
        <translation>Guardar para la Web</translation>
    </message>
    <message>
        <source>Color Depth</source>
        <translation>Profundidad de color</translation>
    </message>
    <message>
        <source>Picture with its texts</source>
        <translation>Imagen con sus textos</translation>
    </message>
    <message>
        <source>Color of the text</source>
        <translation>Color del texto</translation>
    </message>
    <message>
        <source>Apply Text</source>
        <translation>Aplicar el texto</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>New text</source>
        <translation>Texto nuevo</translation>
    </message>
    <message>
        <source>Delete text</source>
        <translation>Eliminar el texto</translation>
    </message>
    <message>
        <source>Send Optimized Image To</source>
        <translation>Enviar la imagen optimizada a</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Zoom to fit</source>
        <translation>Ajustar a la ventana</translation>
    </message>
    <message>
        <source>Type. A drag marks letters, at the frame it moves the text. Esc ends typing.</source>
        <translation>Escriba. Arrastrar marca letras; en el marco mueve el texto. Esc termina la escritura.</translation>
    </message>
    <message>
        <source>Drag the text or its grips. A click or Enter puts the caret into it.</source>
        <translation>Arrastre el texto o sus tiradores. Un clic o Intro sitúa el cursor en él.</translation>
    </message>
    <message>
        <source>Click on the picture where a text shall stand, and type.</source>
        <translation>Haga clic en la imagen donde deba ir el texto y escriba.</translation>
    </message>
    <message>
        <source>
The texts are not in the image yet.
Do you want to merge them ?</source>
        <translation>
Los textos aún no están en la imagen.
¿Desea combinarlos?</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Bring this picture to the front first.</source>
        <translation>Traiga primero esta imagen al frente.</translation>
    </message>
</context>
<context>
    <name>velara::fMain</name>
    <message>
        <source>First color</source>
        <translation>Primer color</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>Segundo color</translation>
    </message>
    <message>
        <source>There is no picture to work on: open one first, or make a new one.</source>
        <translation>No hay imagen con la que trabajar: abra una antes, o cree una nueva.</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Herramienta</translation>
    </message>
    <message>
        <source>
There is no picture in it.</source>
        <translation>
No contiene ninguna imagen.</translation>
    </message>
    <message>
        <source>
&quot;.%1&quot; is no format that is written.</source>
        <translation>
«.%1» no es un formato que se pueda escribir.</translation>
    </message>
    <message>
        <source>Unexpected error loading image</source>
        <translation>Error inesperado al cargar la imagen</translation>
    </message>
    <message>
        <source>This file is not there any more:
</source>
        <translation>Este archivo ya no está:
</translation>
    </message>
    <message>
        <source>These files are not there any more:
</source>
        <translation>Estos archivos ya no están:
</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>Leyendo %1 ...</translation>
    </message>
    <message>
        <source> can&apos;t be read as a picture.</source>
        <translation> no se puede leer como imagen.</translation>
    </message>
    <message>
        <source> was not read</source>
        <translation> no se ha leído</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vacío</translation>
    </message>
    <message>
        <source>No picture has changed.</source>
        <translation>No ha cambiado ninguna imagen.</translation>
    </message>
    <message>
        <source>These are written to their own files:
</source>
        <translation>Estas se escriben en sus propios archivos:
</translation>
    </message>
    <message>
        <source>These need a name, for which you are asked:
</source>
        <translation>Estas necesitan un nombre, que se le pedirá:
</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Guardar todo</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>&amp;Keep camera data</source>
        <translation>&amp;Conservar los datos de la cámara</translation>
    </message>
    <message>
        <source>without the &amp;place</source>
        <translation>&amp;sin el lugar</translation>
    </message>
    <message>
        <source>Saving %1 ... Esc ends it</source>
        <translation>Guardando %1 ... Esc lo detiene</translation>
    </message>
    <message>
        <source>%1 is not saved.</source>
        <translation>%1 no está guardada.</translation>
    </message>
    <message>
        <source>Unexpected error saving image</source>
        <translation>Error inesperado al guardar la imagen</translation>
    </message>
    <message>
        <source>Of a kind that is not read: %1</source>
        <translation>De un tipo que no se lee: %1</translation>
    </message>
    <message>
        <source>It is %1 picture; saved under this name it would become %2 picture.</source>
        <translation>Es una imagen %1; guardada con este nombre se convertiría en una imagen %2.</translation>
    </message>
    <message>
        <source>There is no page behind this one.</source>
        <translation>No hay página después de esta.</translation>
    </message>
    <message>
        <source>There is no page before this one.</source>
        <translation>No hay página antes de esta.</translation>
    </message>
    <message>
        <source>
Do you want to save it under another name ?</source>
        <translation>
¿Desea guardarla con otro nombre?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>G&amp;uardar como ...</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>S&amp;obrescribir</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>No hay nada seleccionado</translation>
    </message>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation>Tamaño mínimo: 2 x 2</translation>
    </message>
    <message>
        <source>Apply Text</source>
        <translation>Aplicar el texto</translation>
    </message>
    <message>
        <source>the texts of another picture wait for OK or Exit</source>
        <translation>los textos de otra imagen esperan Aceptar o Salir</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>A step could not be kept: this is the last one that stands.</source>
        <translation>No se pudo conservar un paso: este es el último que queda.</translation>
    </message>
    <message>
        <source>A step that could not be kept was passed over.</source>
        <translation>Se ha pasado por alto un paso que no se pudo conservar.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>After a crash this picture could not be recovered: %1.</source>
        <translation>Tras un fallo no se pudo recuperar esta imagen: %1.</translation>
    </message>
    <message>
        <source>This step can&apos;t be undone: %1.</source>
        <translation>Este paso no se puede deshacer: %1.</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation>Tamaño del lienzo</translation>
    </message>
    <message>
        <source>Error getting subkey value.</source>
        <translation>Error al obtener el valor de la subclave.</translation>
    </message>
    <message>
        <source>Error Setting subkey value.</source>
        <translation>Error al establecer el valor de la subclave.</translation>
    </message>
    <message numerus="yes">
        <source>It has %n pages; this one alone would be left of it.</source>
        <translation>
            <numerusform>El archivo tiene %n página; solo quedaría esta.</numerusform>
            <numerusform>El archivo tiene %n páginas; solo quedaría esta.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
It has %n pages; this one alone would be left of it.</source>
        <translation>
            <numerusform>
El archivo tiene %n página; solo quedaría esta.</numerusform>
            <numerusform>
El archivo tiene %n páginas; solo quedaría esta.</numerusform>
        </translation>
    </message>
    <message>
        <source>The program that reads pictures (velara-decode) was not found. Is the package being removed? What is open can be changed and saved.</source>
        <translation>No se encontró el programa que lee imágenes (velara-decode). ¿Se está desinstalando el paquete? Lo que está abierto se puede modificar y guardar.</translation>
    </message>
</context>
<context>
    <name>velara::fManual</name>
    <message>
        <source>Page of the manual</source>
        <translation>Página del manual</translation>
    </message>
    <message>
        <source>Pages of the manual</source>
        <translation>Páginas del manual</translation>
    </message>
    <message>
        <source>Words to look for in the manual</source>
        <translation>Palabras que buscar en el manual</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Words to look for</source>
        <translation>Palabras que buscar</translation>
    </message>
</context>
<context>
    <name>velara::fNew</name>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Standard sizes</source>
        <translation>Tamaños habituales</translation>
    </message>
    <message>
        <source>&lt;Custom&gt;</source>
        <translation>&lt;Personalizado&gt;</translation>
    </message>
    <message>
        <source>Custom:</source>
        <translation>Personalizado:</translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation>&amp;Mantener proporciones</translation>
    </message>
</context>
<context>
    <name>velara::fOrientation</name>
    <message>
        <source>Unchanged</source>
        <translation>Sin cambios</translation>
    </message>
    <message>
        <source>90º left</source>
        <translation>90º a la izquierda</translation>
    </message>
    <message>
        <source>90º right</source>
        <translation>90º a la derecha</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Canvas orientation</source>
        <translation>Orientación del lienzo</translation>
    </message>
    <message>
        <source>Flip &amp;vertical</source>
        <translation>&amp;Voltear en vertical</translation>
    </message>
    <message>
        <source>Flip vertical</source>
        <translation>Voltear en vertical</translation>
    </message>
    <message>
        <source>Flip &amp;horizontal</source>
        <translation>Voltear &amp;en horizontal</translation>
    </message>
    <message>
        <source>Flip horizontal</source>
        <translation>Voltear en horizontal</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Flip image</source>
        <translation>Voltear la imagen</translation>
    </message>
</context>
<context>
    <name>velara::fOverlay</name>
    <message>
        <source>Image Merging</source>
        <translation>Combinar imágenes</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Select image to overlay:</source>
        <translation>Elija la imagen que se superpone:</translation>
    </message>
    <message>
        <source>Image to overlay</source>
        <translation>Imagen que se superpone</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>&amp;Tiled</source>
        <translation>&amp;En mosaico</translation>
    </message>
    <message>
        <source>&amp;Mask color</source>
        <translation>&amp;Color de máscara</translation>
    </message>
    <message>
        <source>Mask color</source>
        <translation>Color de máscara</translation>
    </message>
    <message>
        <source>Create &amp;new image</source>
        <translation>Crear &amp;una imagen nueva</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Left offset</source>
        <translation>Desplazamiento izquierdo</translation>
    </message>
    <message>
        <source>Top offset</source>
        <translation>Desplazamiento superior</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>Más de %1</translation>
    </message>
    <message>
        <source>No picture is open.</source>
        <translation>No hay ninguna imagen abierta.</translation>
    </message>
    <message>
        <source>Not merged: %1</source>
        <translation>No combinado: %1</translation>
    </message>
</context>
<context>
    <name>velara::fOwnSize</name>
    <message>
        <source>&amp;Own size</source>
        <translation>&amp;Tamaño propio</translation>
    </message>
    <message>
        <source>Printed width</source>
        <translation>Ancho impreso</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Printed height</source>
        <translation>Alto impreso</translation>
    </message>
    <message>
        <source>Printed size in percent</source>
        <translation>Tamaño impreso en porcentaje</translation>
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
        <translation>Color</translation>
    </message>
    <message>
        <source>Saturation and lightness</source>
        <translation>Saturación y luminosidad</translation>
    </message>
    <message>
        <source>Click to pick and to store in the cell; double click for the large picker</source>
        <translation>Clic para tomar y guardar en la casilla; doble clic para el selector grande</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Current pick</source>
        <translation>Elección actual</translation>
    </message>
    <message>
        <source>First color</source>
        <translation>Primer color</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>Segundo color</translation>
    </message>
    <message>
        <source>Swap the colors</source>
        <translation>Intercambiar los colores</translation>
    </message>
    <message>
        <source>&amp;Link</source>
        <translation>&amp;Vincular</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Vincular</translation>
    </message>
    <message>
        <source>Link with current color</source>
        <translation>Vincular con el color actual</translation>
    </message>
    <message>
        <source>Cell %1</source>
        <translation>Casilla %1</translation>
    </message>
    <message>
        <source>Preset colors</source>
        <translation>Colores predefinidos</translation>
    </message>
    <message>
        <source>%1 degrees</source>
        <translation>%1 grados</translation>
    </message>
</context>
<context>
    <name>velara::fPaste</name>
    <message>
        <source>Picture of the clip</source>
        <translation>Imagen del recorte</translation>
    </message>
    <message>
        <source>Clip History</source>
        <translation>Recortes</translation>
    </message>
    <message>
        <source>Clips, oldest first</source>
        <translation>Recortes, del más antiguo al más reciente</translation>
    </message>
    <message>
        <source>Enter pastes the clip</source>
        <translation>Intro pega el recorte</translation>
    </message>
    <message>
        <source>Scroll the clips</source>
        <translation>Desplazar los recortes</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>Recorte %1</translation>
    </message>
    <message>
        <source>Opaque &amp;Intensity</source>
        <translation>&amp;Intensidad opaca</translation>
    </message>
    <message>
        <source>Opaque Intensity</source>
        <translation>Intensidad opaca</translation>
    </message>
    <message>
        <source>Clip History: 
%1</source>
        <translation>Historial de recortes: 
%1</translation>
    </message>
    <message>
        <source>Minimum cut size: 2 x 2</source>
        <translation>Tamaño mínimo para cortar: 2 x 2</translation>
    </message>
    <message>
        <source>Minimum copy size: 2 x 2</source>
        <translation>Tamaño mínimo para copiar: 2 x 2</translation>
    </message>
</context>
<context>
    <name>velara::fPicker</name>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Color Box</source>
        <translation>Caja de colores</translation>
    </message>
    <message>
        <source>Enter an Integer Value Between 0 and %1</source>
        <translation>Escriba un número entero entre 0 y %1</translation>
    </message>
    <message>
        <source>&amp;Picker</source>
        <translation>&amp;Selector</translation>
    </message>
    <message>
        <source>&amp;Preset</source>
        <translation>&amp;Preajuste</translation>
    </message>
    <message>
        <source>Color field</source>
        <translation>Campo de colores</translation>
    </message>
    <message>
        <source>Color strip</source>
        <translation>Tira de colores</translation>
    </message>
    <message>
        <source>%1 on the strip</source>
        <translation>%1 en la tira</translation>
    </message>
    <message>
        <source>Color model</source>
        <translation>Modelo de color</translation>
    </message>
    <message>
        <source>He&amp;x</source>
        <translation>&amp;Hex</translation>
    </message>
    <message>
        <source>Preset colors</source>
        <translation>Colores predefinidos</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Personalizado...</translation>
    </message>
    <message>
        <source>Safe Palette (216)</source>
        <translation>Paleta segura (216)</translation>
    </message>
    <message>
        <source>Put the color into the selected cell</source>
        <translation>Poner el color en la casilla elegida</translation>
    </message>
    <message>
        <source>Color to put into a cell</source>
        <translation>Color que se pondrá en una casilla</translation>
    </message>
    <message>
        <source>Select a cell, then &lt;&lt; keeps
the color in your list.</source>
        <translation>Elija una casilla; después &lt;&lt; guarda
el color en su lista.</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>Color elegido</translation>
    </message>
    <message>
        <source>Color before</source>
        <translation>Color anterior</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Color under the pointer</source>
        <translation>Color bajo el puntero</translation>
    </message>
    <message>
        <source>Recent colors</source>
        <translation>Colores recientes</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Recent color %1</source>
        <translation>Color reciente %1</translation>
    </message>
    <message>
        <source>O&amp;K</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>velara::fPicturePage</name>
    <message>
        <source>%1, left and right</source>
        <translation>%1, izquierda y derecha</translation>
    </message>
    <message>
        <source>%1, up and down</source>
        <translation>%1, arriba y abajo</translation>
    </message>
</context>
<context>
    <name>velara::fPreferences</name>
    <message>
        <source>&amp;Open iP maximized </source>
        <translation>&amp;Abrir iP maximizado </translation>
    </message>
    <message>
        <source>Open i&amp;mages maximized </source>
        <translation>Abrir &amp;imágenes maximizadas </translation>
    </message>
    <message>
        <source>&amp;Preserve last folder</source>
        <translation>&amp;Recordar la última carpeta</translation>
    </message>
    <message>
        <source>&amp;Ask to save on Close/Exit</source>
        <translation>&amp;Preguntar si guardar al cerrar/salir</translation>
    </message>
    <message>
        <source>%1: Options</source>
        <translation>%1: Opciones</translation>
    </message>
    <message>
        <source>Images default &amp;folder</source>
        <translation>&amp;Carpeta de imágenes predeterminada</translation>
    </message>
    <message>
        <source>Images default folder</source>
        <translation>Carpeta de imágenes predeterminada</translation>
    </message>
    <message>
        <source>&amp;Browse ...</source>
        <translation>&amp;Examinar ...</translation>
    </message>
    <message>
        <source>Select Images default folder</source>
        <translation>Elegir la carpeta de imágenes predeterminada</translation>
    </message>
    <message>
        <source>&amp;Convert pictures to sRGB</source>
        <translation>Convertir las imágenes a &amp;sRGB</translation>
    </message>
    <message>
        <source>&amp;Show pictures by the screen&apos;s color profile</source>
        <translation>&amp;Mostrar según el perfil de color de la pantalla</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Como el sistema</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>Idi&amp;oma</translation>
    </message>
    <message>
        <source>from the next start on</source>
        <translation>desde el próximo inicio</translation>
    </message>
    <message>
        <source>Colors of the windows</source>
        <translation>Colores de las ventanas</translation>
    </message>
    <message>
        <source>Colors of the &amp;windows:</source>
        <translation>Colores de las ve&amp;ntanas:</translation>
    </message>
</context>
<context>
    <name>velara::fPresetWell</name>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Window text</source>
        <translation>Texto de ventana</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Botón</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Texto de botón</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Selected text</source>
        <translation>Texto seleccionado</translation>
    </message>
    <message>
        <source>Tool tip</source>
        <translation>Información emergente</translation>
    </message>
    <message>
        <source>Tool tip text</source>
        <translation>Texto de información emergente</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Vincular</translation>
    </message>
    <message>
        <source>Visited link</source>
        <translation>Enlace visitado</translation>
    </message>
    <message>
        <source>Light edge</source>
        <translation>Borde claro</translation>
    </message>
    <message>
        <source>Pale edge</source>
        <translation>Borde pálido</translation>
    </message>
    <message>
        <source>Middle edge</source>
        <translation>Borde medio</translation>
    </message>
    <message>
        <source>Dark edge</source>
        <translation>Borde oscuro</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Sombra</translation>
    </message>
    <message>
        <source>Other rows</source>
        <translation>Otras filas</translation>
    </message>
    <message>
        <source>Choose one of the set</source>
        <translation>Elija uno del conjunto</translation>
    </message>
</context>
<context>
    <name>velara::fPrint</name>
    <message>
        <source>The page</source>
        <translation>La página</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Borrador</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>&amp;Fit to page</source>
        <translation>&amp;Ajustar a la página</translation>
    </message>
    <message>
        <source>&amp;Center image</source>
        <translation>&amp;Centrar la imagen</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Printing ...</source>
        <translation>Imprimiendo ...</translation>
    </message>
    <message>
        <source>Asking the printer ...</source>
        <translation>Consultando la impresora ...</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>como máximo %1</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>File: </source>
        <translation>Archivo: </translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Imprimir a un archivo</translation>
    </message>
    <message>
        <source>Unable to print</source>
        <translation>No se puede imprimir</translation>
    </message>
    <message>
        <source>It is waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>%1 copias</translation>
    </message>
</context>
<context>
    <name>velara::fPrinterBox</name>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>PDF file ...</source>
        <translation>Archivo PDF ...</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Elija una impresora</translation>
    </message>
    <message>
        <source>Looking for printers ...</source>
        <translation>Buscando impresoras ...</translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation>No se encontró ninguna impresora</translation>
    </message>
</context>
<context>
    <name>velara::fPrinterSetup</name>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>&amp;Shades of gray</source>
        <translation>&amp;Tonos de gris</translation>
    </message>
    <message>
        <source>Printer Setup</source>
        <translation>Configurar impresora</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Asking the printer ...</source>
        <translation>Consultando la impresora ...</translation>
    </message>
</context>
<context>
    <name>velara::fProperties</name>
    <message>
        <source>%1 pixels (%2 megapixels)</source>
        <translation>%1 píxeles (%2 megapíxeles)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propiedad</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
</context>
<context>
    <name>velara::fRecovery</name>
    <message>
        <source>Recover Pictures</source>
        <translation>Recuperar imágenes</translation>
    </message>
    <message>
        <source>The program ended before the changes of these pictures were saved.</source>
        <translation>El programa terminó antes de que se guardaran los cambios de estas imágenes.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>&amp;Recover All</source>
        <translation>&amp;Recuperar todo</translation>
    </message>
    <message>
        <source>&amp;Discard All ...</source>
        <translation>&amp;Descartar todo ...</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Más tarde</translation>
    </message>
    <message>
        <source>They stay on the start page, and in the File menu</source>
        <translation>Permanecen en la página de inicio y en el menú Archivo</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Miniatura</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>Discard ...</source>
        <translation>Descartar ...</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
</context>
<context>
    <name>velara::fResolution</name>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Anti-Alias</source>
        <translation>Suavizado</translation>
    </message>
    <message>
        <source>File: </source>
        <translation>Archivo: </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>velara::fRgbBox</name>
    <message>
        <source>Drag up or down to change it; with Ctrl by tens</source>
        <translation>Arrastre arriba o abajo para cambiarlo; con Ctrl, de diez en diez</translation>
    </message>
</context>
<context>
    <name>velara::fRotate</name>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grados</translation>
    </message>
    <message>
        <source>&amp;Antialiasing</source>
        <translation>&amp;Suavizado</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>Suavizado</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>45 degrees more</source>
        <translation>45 grados más</translation>
    </message>
    <message>
        <source>45 degrees less</source>
        <translation>45 grados menos</translation>
    </message>
    <message>
        <source>Canvas will be resized</source>
        <translation>Se cambiará el tamaño del lienzo</translation>
    </message>
</context>
<context>
    <name>velara::fScanSettings</name>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>Whole &amp;bed</source>
        <translation>&amp;Todo el cristal</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;Desde</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Modo</translation>
    </message>
    <message>
        <source>&amp;Resolution (dpi)</source>
        <translation>&amp;Resolución (ppp)</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>I&amp;zquierda</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>Arri&amp;ba</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>A&amp;ncho</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>A&amp;lto</translation>
    </message>
</context>
<context>
    <name>velara::fSearch</name>
    <message>
        <source>Find a command</source>
        <translation>Buscar un comando</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>Find a Command</source>
        <translation>Buscar un comando</translation>
    </message>
    <message>
        <source>A few letters of what you want to do</source>
        <translation>Unas letras de lo que desea hacer</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Nothing has this name.</source>
        <translation>Nada tiene ese nombre.</translation>
    </message>
    <message>
        <source> · used lately</source>
        <translation> · usado hace poco</translation>
    </message>
</context>
<context>
    <name>velara::fSize</name>
    <message>
        <source>Image size</source>
        <translation>Tamaño de la imagen</translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation>&amp;Mantener proporciones</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentaje</translation>
    </message>
    <message>
        <source>&amp;Anti-Alias</source>
        <translation>&amp;Suavizado</translation>
    </message>
    <message>
        <source>Anti-Alias</source>
        <translation>Suavizado</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Rápido</translation>
    </message>
    <message>
        <source>Choose a factor</source>
        <translation>Elija un factor</translation>
    </message>
    <message>
        <source>&amp;Percent</source>
        <translation>&amp;Porcentaje</translation>
    </message>
</context>
<context>
    <name>velara::fSizeFields</name>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>Mantener proporciones</translation>
    </message>
</context>
<context>
    <name>velara::fSource</name>
    <message>
        <source>Select Source</source>
        <translation>Elegir origen</translation>
    </message>
    <message>
        <source>Scanners</source>
        <translation>Escáneres</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Buscar de nuevo</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Elegir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Looking for scanners ...</source>
        <translation>Buscando escáneres ...</translation>
    </message>
    <message>
        <source>No scanner was found: </source>
        <translation>No se encontró ningún escáner: </translation>
    </message>
    <message>
        <source>No scanner was found.</source>
        <translation>No se encontró ningún escáner.</translation>
    </message>
    <message>
        <source>Scanners of this machine:</source>
        <translation>Escáneres de este equipo:</translation>
    </message>
    <message>
        <source>Please Verify that the system is connected to Scanner!</source>
        <translation>¡Compruebe que el equipo esté conectado al escáner!</translation>
    </message>
</context>
<context>
    <name>velara::fSplash</name>
    <message>
        <source>About Velara Studio</source>
        <translation>Acerca de Velara Studio</translation>
    </message>
</context>
<context>
    <name>velara::fStartPage</name>
    <message>
        <source>Recent pictures</source>
        <translation>Imágenes recientes</translation>
    </message>
    <message>
        <source>How to start</source>
        <translation>Cómo empezar</translation>
    </message>
    <message>
        <source>Open a picture to begin</source>
        <translation>Abra una imagen para empezar</translation>
    </message>
    <message>
        <source>Pictures may also be dropped here.</source>
        <translation>También puede soltar imágenes aquí.</translation>
    </message>
    <message>
        <source>Not saved when the program ended</source>
        <translation>Sin guardar al terminar el programa</translation>
    </message>
    <message>
        <source>&amp;Recover ...</source>
        <translation>&amp;Recuperar ...</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation>&amp;Nuevo ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Abrir ...</translation>
    </message>
    <message>
        <source>From the &amp;clipboard</source>
        <translation>&amp;Del portapapeles</translation>
    </message>
</context>
<context>
    <name>velara::fStatus</name>
    <message>
        <source>Position of the pointer</source>
        <translation>Posición del puntero</translation>
    </message>
    <message>
        <source>Extent of the drag</source>
        <translation>Extensión del arrastre</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Tamaño de la imagen</translation>
    </message>
    <message>
        <source>Page of the file</source>
        <translation>Página del archivo</translation>
    </message>
    <message>
        <source>Name of the picture</source>
        <translation>Nombre de la imagen</translation>
    </message>
    <message>
        <source>Keys of what is under way</source>
        <translation>Teclas de lo que está en curso</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Progress of the filter</source>
        <translation>Progreso del filtro</translation>
    </message>
</context>
<context>
    <name>velara::fTextPage</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alineación</translation>
    </message>
    <message>
        <source>Left Justify|Centre Justify|Right Justify|Full Justify</source>
        <translation>Alineado a la izquierda|Centrado|Alineado a la derecha|Justificado</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Sombra</translation>
    </message>
    <message>
        <source>Top Left|Top|Top Right|Left|No Shadow|Right|Bottom Left|Bottom|Bottom Right</source>
        <translation>Arriba a la izquierda|Arriba|Arriba a la derecha|Izquierda|Sin sombra|Derecha|Abajo a la izquierda|Abajo|Abajo a la derecha</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Subrayado</translation>
    </message>
    <message>
        <source>The text is too long for this space: make the window larger.</source>
        <translation>El texto es demasiado largo para este espacio: agrande la ventana.</translation>
    </message>
    <message>
        <source>The text as it is stamped</source>
        <translation>El texto tal como se estampa</translation>
    </message>
    <message>
        <source>Type the text here</source>
        <translation>Escriba aquí el texto</translation>
    </message>
    <message>
        <source>&amp;Place with the mouse</source>
        <translation>&amp;Colocar con el ratón</translation>
    </message>
    <message>
        <source>Place with the mouse</source>
        <translation>Colocar con el ratón</translation>
    </message>
    <message>
        <source>Takes the text tool: press on the picture, drag, and let go where the text shall stand</source>
        <translation>Toma la herramienta de texto: pulse en la imagen, arrastre y suelte donde deba ir el texto</translation>
    </message>
    <message>
        <source>Unable to find suitable font size for text</source>
        <translation>No se encontró un tamaño de fuente adecuado para el texto</translation>
    </message>
</context>
<context>
    <name>velara::fTexturize</name>
    <message>
        <source>Texturize</source>
        <translation>Texturizar</translation>
    </message>
    <message>
        <source>The folder &quot;Textures&quot; can&apos;t be written to.</source>
        <translation>No se puede escribir en la carpeta «Textures».</translation>
    </message>
    <message>
        <source>Textures</source>
        <translation>Texturas</translation>
    </message>
    <message>
        <source>Chosen texture</source>
        <translation>Textura elegida</translation>
    </message>
    <message>
        <source>Preview, pixel for pixel</source>
        <translation>Vista previa, píxel a píxel</translation>
    </message>
    <message>
        <source>The texture</source>
        <translation>La textura</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensidad</translation>
    </message>
    <message>
        <source>Depth </source>
        <translation>Profundidad </translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profundidad</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>Repujado</translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation>Grabado</translation>
    </message>
    <message>
        <source>Self-Texturized</source>
        <translation>Texturizada consigo misma</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>(can&apos;t be read)</source>
        <translation>(no se puede leer)</translation>
    </message>
    <message>
        <source>This file can&apos;t be read as a picture.</source>
        <translation>Este archivo no se puede leer como imagen.</translation>
    </message>
    <message>
        <source>A relief needs a picture of at least 2 x 2 pixels.</source>
        <translation>Un relieve necesita una imagen de al menos 2 x 2 píxeles.</translation>
    </message>
    <message>
        <source>A texture needs at least 2 x 2 pixels.</source>
        <translation>Una textura necesita al menos 2 x 2 píxeles.</translation>
    </message>
</context>
<context>
    <name>velara::fToolPane</name>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>First color</source>
        <translation>Primer color</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>Segundo color</translation>
    </message>
    <message>
        <source>Swap the colors</source>
        <translation>Intercambiar los colores</translation>
    </message>
</context>
<context>
    <name>velara::fToolTextures</name>
    <message>
        <source>Text and effects</source>
        <translation>Texto y efectos</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texto</translation>
    </message>
    <message>
        <source>&amp;Effects</source>
        <translation>&amp;Efectos</translation>
    </message>
    <message>
        <source>Textures: %1</source>
        <translation>Texturas: %1</translation>
    </message>
</context>
<context>
    <name>velara::fWebTable</name>
    <message>
        <source>All formats</source>
        <translation>Todos los formatos</translation>
    </message>
    <message>
        <source>Formats by size</source>
        <translation>Formatos por tamaño</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Loss</source>
        <translation>Pérdida</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Choose the format</source>
        <translation>Elija el formato</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Decibels: the more, the better.</source>
        <translation>Decibelios: cuantos más, mejor.</translation>
    </message>
    <message>
        <source>no loss</source>
        <translation>sin pérdida</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
</context>
</TS>
