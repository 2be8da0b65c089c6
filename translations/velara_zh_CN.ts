<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Clipboard</name>
    <message>
        <source>the picture on the clipboard</source>
        <translation>剪贴板上的图片</translation>
    </message>
    <message>
        <source>The picture on the clipboard was given up.</source>
        <translation>已放弃剪贴板上的图片。</translation>
    </message>
    <message>
        <source>The picture on the clipboard</source>
        <translation>剪贴板上的图片</translation>
    </message>
    <message>
        <source>The program that put the picture on the clipboard doesn&apos;t hand it over.</source>
        <translation>将图片放到剪贴板的程序没有交出它。</translation>
    </message>
</context>
<context>
    <name>Colors</name>
    <message>
        <source>16 Colors</source>
        <translation>16 色</translation>
    </message>
    <message>
        <source>48 Colors</source>
        <translation>48 色</translation>
    </message>
    <message>
        <source>Red Pallete</source>
        <translation>红色调色板</translation>
    </message>
    <message>
        <source>Green Pallete</source>
        <translation>绿色调色板</translation>
    </message>
    <message>
        <source>Blue Pallete</source>
        <translation>蓝色调色板</translation>
    </message>
    <message>
        <source>Grey Pallete</source>
        <translation>灰色调色板</translation>
    </message>
    <message>
        <source>System Pallete</source>
        <translation>系统调色板</translation>
    </message>
</context>
<context>
    <name>FileFacts</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>Filters</name>
    <message>
        <source>Color [Colorize]</source>
        <translation>颜色 [着色]</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>明度</translation>
    </message>
    <message>
        <source>Adjust [Brightness]</source>
        <translation>调整 [亮度]</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>levels added; 0 changes nothing</source>
        <translation>增加的级数；0 表示不变</translation>
    </message>
    <message>
        <source>Adjust [Contrast]</source>
        <translation>调整 [对比度]</translation>
    </message>
    <message>
        <source>percent added to the contrast; -100 is flat grey</source>
        <translation>对比度增加的百分比；-100 为纯灰</translation>
    </message>
    <message>
        <source>Adjust [Saturation]</source>
        <translation>调整 [饱和度]</translation>
    </message>
    <message>
        <source>percent added to the saturation; -100 is grey</source>
        <translation>饱和度增加的百分比；-100 为灰色</translation>
    </message>
    <message>
        <source>Adjust [Gamma correction]</source>
        <translation>调整 [伽马校正]</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>伽马</translation>
    </message>
    <message>
        <source>gamma is (Level+100)/100; -100 is black</source>
        <translation>伽马为（级别+100）/100；-100 为黑色</translation>
    </message>
    <message>
        <source>Definition [Diffuse]</source>
        <translation>清晰度 [扩散]</translation>
    </message>
    <message>
        <source>Horizontal range</source>
        <translation>水平范围</translation>
    </message>
    <message>
        <source>pixels from left to right</source>
        <translation>从左到右的像素</translation>
    </message>
    <message>
        <source>Vertical range</source>
        <translation>垂直范围</translation>
    </message>
    <message>
        <source>pixels from top to bottom</source>
        <translation>从上到下的像素</translation>
    </message>
    <message>
        <source>Adjust [Blur]</source>
        <translation>调整 [模糊]</translation>
    </message>
    <message>
        <source>pixels; 0 changes nothing</source>
        <translation>像素；0 表示不变</translation>
    </message>
    <message>
        <source>Definition [Halftone]</source>
        <translation>清晰度 [半色调]</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>半径</translation>
    </message>
    <message>
        <source>pixels of a dot</source>
        <translation>每个网点的像素</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>清晰度</translation>
    </message>
    <message>
        <source>pixels added to its reach</source>
        <translation>作用范围增加的像素</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>强度</translation>
    </message>
    <message>
        <source>percent brighter</source>
        <translation>变亮的百分比</translation>
    </message>
    <message>
        <source>Definition [Pixelaze]</source>
        <translation>清晰度 [像素化]</translation>
    </message>
    <message>
        <source>Pixel size</source>
        <translation>像素大小</translation>
    </message>
    <message>
        <source>pixels a side; 1 changes nothing</source>
        <translation>边长像素；1 表示不变</translation>
    </message>
    <message>
        <source>Edges [Emboss]</source>
        <translation>边缘 [浮雕]</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>权重</translation>
    </message>
    <message>
        <source>tenths of the difference; 0 is flat grey</source>
        <translation>差值的十分之几；0 为纯灰</translation>
    </message>
    <message>
        <source>Edges [Engrave]</source>
        <translation>边缘 [雕刻]</translation>
    </message>
    <message>
        <source>Edges [Contour]</source>
        <translation>边缘 [轮廓]</translation>
    </message>
    <message>
        <source>edges darker than this show; 0 is none</source>
        <translation>显示比此值更暗的边缘；0 为无</translation>
    </message>
    <message>
        <source>Edges [Sketch]</source>
        <translation>边缘 [素描]</translation>
    </message>
    <message>
        <source>B/W</source>
        <translation>黑白</translation>
    </message>
    <message>
        <source>edges above it are drawn; flat ones have 255</source>
        <translation>绘制高于此值的边缘；平坦处为 255</translation>
    </message>
    <message>
        <source>Edges [Threshold]</source>
        <translation>边缘 [阈值]</translation>
    </message>
    <message>
        <source>Cut value</source>
        <translation>截止值</translation>
    </message>
    <message>
        <source>brightest level that becomes black</source>
        <translation>变为黑色的最亮级别</translation>
    </message>
    <message>
        <source>Color [Isolate]</source>
        <translation>颜色 [隔离]</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>容差</translation>
    </message>
    <message>
        <source>percent of half a channel&apos;s range; 0 is the exact colour</source>
        <translation>通道半程的百分比；0 为精确颜色</translation>
    </message>
    <message>
        <source>Color [Reduction]</source>
        <translation>颜色 [减色]</translation>
    </message>
    <message>
        <source>levels are rounded to multiples of Level+1; 0 changes nothing</source>
        <translation>级别取整为（级别+1）的倍数；0 表示不变</translation>
    </message>
    <message>
        <source>Color [Replace]</source>
        <translation>颜色 [替换]</translation>
    </message>
    <message>
        <source>Color [Replace Hue/Sat.]</source>
        <translation>颜色 [替换色相/饱和度]</translation>
    </message>
    <message>
        <source>Hue Tolerance</source>
        <translation>色相容差</translation>
    </message>
    <message>
        <source>hundredths of a sixth of a turn</source>
        <translation>六分之一圈的百分之几</translation>
    </message>
    <message>
        <source>Sat. Tolerance</source>
        <translation>饱和度容差</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>百分比</translation>
    </message>
    <message>
        <source>Apply Tolerance</source>
        <translation>应用容差</translation>
    </message>
    <message>
        <source>Color [Replace Lum.]</source>
        <translation>颜色 [替换明度]</translation>
    </message>
    <message>
        <source>Lum. Tolerance</source>
        <translation>明度容差</translation>
    </message>
    <message>
        <source>percent of brightness</source>
        <translation>亮度的百分比</translation>
    </message>
    <message>
        <source>Adjust [Sharpen]</source>
        <translation>调整 [锐化]</translation>
    </message>
    <message>
        <source>0 weak to 100 strong</source>
        <translation>0 弱到 100 强</translation>
    </message>
    <message>
        <source>Adjust [Soften]</source>
        <translation>调整 [柔化]</translation>
    </message>
    <message>
        <source>Color [Shift]</source>
        <translation>颜色 [偏移]</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>偏移</translation>
    </message>
    <message>
        <source>levels added</source>
        <translation>增加的级数</translation>
    </message>
    <message>
        <source>Color [Hue rotation]</source>
        <translation>颜色 [色相旋转]</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>偏移量</translation>
    </message>
    <message>
        <source>percent of a turn of the hue</source>
        <translation>色相一圈的百分比</translation>
    </message>
    <message>
        <source>percent kept; 0 is grey</source>
        <translation>保留的百分比；0 为灰色</translation>
    </message>
    <message>
        <source>Color [Grey rotation]</source>
        <translation>颜色 [灰度旋转]</translation>
    </message>
    <message>
        <source>phase of the sine in tenths of a radian</source>
        <translation>正弦的相位，以十分之一弧度计</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>步数</translation>
    </message>
    <message>
        <source>its frequency: Steps/2.5 radians from black to white</source>
        <translation>其频率：从黑到白为 步数/2.5 弧度</translation>
    </message>
    <message>
        <source>Color [Hue stretch]</source>
        <translation>颜色 [色相拉伸]</translation>
    </message>
    <message>
        <source>percent; 0 is grey</source>
        <translation>百分比；0 为灰色</translation>
    </message>
    <message>
        <source>Stretch factor</source>
        <translation>拉伸系数</translation>
    </message>
    <message>
        <source>tenths of a radian of hue from black to white</source>
        <translation>从黑到白的色相，以十分之一弧度计</translation>
    </message>
    <message>
        <source>Color [RGB levels]</source>
        <translation>颜色 [RGB 色阶]</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>Color [RGB banks]</source>
        <translation>颜色 [RGB 通道]</translation>
    </message>
    <message>
        <source>Deformation [Lens]</source>
        <translation>变形 [透镜]</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>直径</translation>
    </message>
    <message>
        <source>Magnify factor</source>
        <translation>放大系数</translation>
    </message>
    <message>
        <source>0 nothing to 130 strong</source>
        <translation>0 无到 130 强</translation>
    </message>
    <message>
        <source>Deformation [Waves]</source>
        <translation>变形 [波浪]</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>degrees a row</source>
        <translation>每行的度数</translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation>振幅</translation>
    </message>
    <message>
        <source>quarters of a pixel</source>
        <translation>四分之一像素</translation>
    </message>
    <message>
        <source>Start degree</source>
        <translation>起始角度</translation>
    </message>
    <message>
        <source>degrees at the top row</source>
        <translation>最上一行的度数</translation>
    </message>
    <message>
        <source>Deformation [Bend]</source>
        <translation>变形 [弯曲]</translation>
    </message>
    <message>
        <source>Clean back</source>
        <translation>清除背景</translation>
    </message>
    <message>
        <source>Radius factor</source>
        <translation>半径系数</translation>
    </message>
    <message>
        <source>percent added to twice the radius</source>
        <translation>两倍半径增加的百分比</translation>
    </message>
    <message>
        <source>Deformation [Fold]</source>
        <translation>变形 [折叠]</translation>
    </message>
    <message>
        <source>Horizontal factor</source>
        <translation>水平系数</translation>
    </message>
    <message>
        <source>percent at the edge; 0 is none</source>
        <translation>边缘处的百分比；0 为无</translation>
    </message>
    <message>
        <source>Vertical factor</source>
        <translation>垂直系数</translation>
    </message>
    <message>
        <source>Deformation [Rotate]</source>
        <translation>变形 [旋转]</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>度</translation>
    </message>
    <message>
        <source>to the left; below 0 to the right</source>
        <translation>向左；小于 0 则向右</translation>
    </message>
    <message>
        <source>Deformation [Stretch]</source>
        <translation>变形 [拉伸]</translation>
    </message>
    <message>
        <source>percent; above 0 shrinks; below 0 enlarges</source>
        <translation>百分比；大于 0 缩小，小于 0 放大</translation>
    </message>
    <message>
        <source>percent as before</source>
        <translation>百分比，同上</translation>
    </message>
    <message>
        <source>Deformation [Tile]</source>
        <translation>变形 [平铺]</translation>
    </message>
    <message>
        <source>Factor</source>
        <translation>系数</translation>
    </message>
    <message>
        <source>copies a side</source>
        <translation>每边的份数</translation>
    </message>
    <message>
        <source>Deformation [Twirl]</source>
        <translation>变形 [旋涡]</translation>
    </message>
    <message>
        <source>tenths of a radian at half the width</source>
        <translation>半宽处的十分之一弧度</translation>
    </message>
    <message>
        <source>Offset degrees</source>
        <translation>偏移角度</translation>
    </message>
    <message>
        <source>degrees for all</source>
        <translation>整体的度数</translation>
    </message>
    <message>
        <source>Special [Grid]</source>
        <translation>特殊 [网格]</translation>
    </message>
    <message>
        <source>Force margins</source>
        <translation>强制边距</translation>
    </message>
    <message>
        <source>Horizontal step</source>
        <translation>水平步长</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>Vertical step</source>
        <translation>垂直步长</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>0 invisible to 255 opaque</source>
        <translation>0 不可见到 255 不透明</translation>
    </message>
    <message>
        <source>Special [Light]</source>
        <translation>特殊 [光]</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>扩展</translation>
    </message>
    <message>
        <source>levels added in the middle</source>
        <translation>中间增加的级数</translation>
    </message>
    <message>
        <source>percent of it at the rim</source>
        <translation>边缘处为其百分之几</translation>
    </message>
    <message>
        <source>Special [Noise]</source>
        <translation>特殊 [杂色]</translation>
    </message>
    <message>
        <source>Equalized</source>
        <translation>均衡</translation>
    </message>
    <message>
        <source>levels up or down</source>
        <translation>上下的级数</translation>
    </message>
    <message>
        <source>Special [Scanlines]</source>
        <translation>特殊 [扫描线]</translation>
    </message>
    <message>
        <source>levels taken away</source>
        <translation>减去的级数</translation>
    </message>
    <message>
        <source>Behind Glass</source>
        <translation>玻璃之后</translation>
    </message>
    <message>
        <source>Behind Curtain</source>
        <translation>幕帘之后</translation>
    </message>
    <message>
        <source>Squary</source>
        <translation>方格</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Slanting</source>
        <translation>斜纹</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>轻</translation>
    </message>
    <message>
        <source>Tight</source>
        <translation>紧密</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>宽大</translation>
    </message>
    <message>
        <source>Classy</source>
        <translation>典雅</translation>
    </message>
    <message>
        <source>Whity</source>
        <translation>泛白</translation>
    </message>
    <message>
        <source>Stored texture</source>
        <translation>存储的纹理</translation>
    </message>
    <message>
        <source>Contour</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>Diffuse</source>
        <translation>扩散</translation>
    </message>
    <message>
        <source>Dilate</source>
        <translation>膨胀</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>溶解</translation>
    </message>
    <message>
        <source>Edge enhance</source>
        <translation>边缘增强</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>浮雕</translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation>雕刻</translation>
    </message>
    <message>
        <source>Equalize</source>
        <translation>均衡</translation>
    </message>
    <message>
        <source>Erode</source>
        <translation>腐蚀</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>翻转</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>半色调</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>反相</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>杂色</translation>
    </message>
    <message>
        <source>Old photo</source>
        <translation>老照片</translation>
    </message>
    <message>
        <source>Painting</source>
        <translation>绘画</translation>
    </message>
    <message>
        <source>Photocopy</source>
        <translation>影印</translation>
    </message>
    <message>
        <source>Pixelize</source>
        <translation>像素化</translation>
    </message>
    <message>
        <source>Relief</source>
        <translation>凸起</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Scanlines</source>
        <translation>扫描线</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>锐化</translation>
    </message>
    <message>
        <source>Sketch</source>
        <translation>素描</translation>
    </message>
    <message>
        <source>Soften</source>
        <translation>柔化</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>热成像</translation>
    </message>
    <message>
        <source>Twirl</source>
        <translation>旋涡</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>波浪</translation>
    </message>
    <message>
        <source>Invert black</source>
        <translation>反相黑色</translation>
    </message>
</context>
<context>
    <name>Fonts</name>
    <message>
        <source>Failed to get font info</source>
        <translation>无法获取字体信息</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>%1 is %2 picture</source>
        <translation>%1 是 %2 图片</translation>
    </message>
    <message>
        <source>All Supported Picture Formats</source>
        <translation>所有支持的图片格式</translation>
    </message>
    <message>
        <source>Bitmap Files (*.BMP;*.DIB)</source>
        <translation>位图文件 (*.BMP;*.DIB)</translation>
    </message>
    <message>
        <source>Meta Files (*.WMF;*.EMF)</source>
        <translation>图元文件 (*.WMF;*.EMF)</translation>
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
        <translation>便携式网络图形 (*.PNG)</translation>
    </message>
    <message>
        <source>Zsoft Paintbrush Files (*.PCX)</source>
        <translation>Zsoft Paintbrush 文件 (*.PCX)</translation>
    </message>
    <message>
        <source>Wireless Bitmap (*.WBMP)</source>
        <translation>无线位图 (*.WBMP)</translation>
    </message>
    <message>
        <source>Portable Bitmap (*.PBM)</source>
        <translation>便携式位图 (*.PBM)</translation>
    </message>
    <message>
        <source>Portable Graymap (*.PGM)</source>
        <translation>便携式灰度图 (*.PGM)</translation>
    </message>
    <message>
        <source>Portable Pixelmap (*.PPM)</source>
        <translation>便携式像素图 (*.PPM)</translation>
    </message>
    <message>
        <source>Windows Icon (*.ICO)</source>
        <translation>Windows 图标 (*.ICO)</translation>
    </message>
    <message>
        <source>Photoshop (*.PSD)</source>
        <translation>Photoshop (*.PSD)</translation>
    </message>
    <message>
        <source>JPEG Network Graphics (*.JNG)</source>
        <translation>JPEG 网络图形 (*.JNG)</translation>
    </message>
    <message>
        <source>Multiple Network Graphics (*.MNG)</source>
        <translation>多重网络图形 (*.MNG)</translation>
    </message>
    <message>
        <source>Tagged Image File Format (*.TIF)</source>
        <translation>标记图像文件格式 (*.TIF)</translation>
    </message>
    <message>
        <source>Commodore 64 Koala format (*.KOA)</source>
        <translation>Commodore 64 Koala 格式 (*.KOA)</translation>
    </message>
    <message>
        <source>Kodak PhotoCD (*.PCD)</source>
        <translation>Kodak PhotoCD (*.PCD)</translation>
    </message>
    <message>
        <source>Sun Rasterfile (*.RAS)</source>
        <translation>Sun 光栅文件 (*.RAS)</translation>
    </message>
    <message>
        <source>Targa files (*.TGA)</source>
        <translation>Targa 文件 (*.TGA)</translation>
    </message>
    <message>
        <source>Dr.Halo bitmap (*.CUT)</source>
        <translation>Dr.Halo 位图 (*.CUT)</translation>
    </message>
    <message>
        <source>Interchanged File Format (*.IFF)</source>
        <translation>交换文件格式 (*.IFF)</translation>
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
        <translation>高效图像文件 (*.HEIC)</translation>
    </message>
    <message>
        <source>AV1 Image File (*.AVIF)</source>
        <translation>AV1 图像文件 (*.AVIF)</translation>
    </message>
    <message>
        <source>JPEG XL (*.JXL)</source>
        <translation>JPEG XL (*.JXL)</translation>
    </message>
    <message>
        <source>Scalable Vector Graphics (*.SVG)</source>
        <translation>可缩放矢量图形 (*.SVG)</translation>
    </message>
    <message>
        <source>Camera Files (*.DNG;*.CR2;*.NEF;*.ARW;*.RAF;*.ORF;*.RW2)</source>
        <translation>相机文件 (*.DNG;*.CR2;*.NEF;*.ARW;*.RAF;*.ORF;*.RW2)</translation>
    </message>
    <message>
        <source>All Supported graphic formats </source>
        <translation>所有支持的图形格式 </translation>
    </message>
    <message>
        <source>Windows Bitmap Files (*.bmp)</source>
        <translation>Windows 位图文件 (*.bmp)</translation>
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
        <translation>ASCII 位图格式 (*.ppm)(*.pgm)(*.pbm)</translation>
    </message>
    <message>
        <source>Windows Bitmap</source>
        <translation>Windows 位图</translation>
    </message>
    <message>
        <source>Meta Files</source>
        <translation>图元文件</translation>
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
        <translation>便携式网络图形</translation>
    </message>
    <message>
        <source>ZSoft Paintbrush Format</source>
        <translation>ZSoft Paintbrush 格式</translation>
    </message>
    <message>
        <source>Wireless Bitmap</source>
        <translation>无线位图</translation>
    </message>
    <message>
        <source>Portable Bitmap</source>
        <translation>便携式位图</translation>
    </message>
    <message>
        <source>Portable Graymap</source>
        <translation>便携式灰度图</translation>
    </message>
    <message>
        <source>Portable Pixelmap</source>
        <translation>便携式像素图</translation>
    </message>
    <message>
        <source>Windows Icon</source>
        <translation>Windows 图标</translation>
    </message>
    <message>
        <source>Photoshop</source>
        <translation>Photoshop</translation>
    </message>
    <message>
        <source>JPEG Network Graphics</source>
        <translation>JPEG 网络图形</translation>
    </message>
    <message>
        <source>Multiple Network Graphics</source>
        <translation>多重网络图形</translation>
    </message>
    <message>
        <source>Tagged Image File Format</source>
        <translation>标记图像文件格式</translation>
    </message>
    <message>
        <source>Commodore 64 Koala format</source>
        <translation>Commodore 64 Koala 格式</translation>
    </message>
    <message>
        <source>Kodak PhotoCD</source>
        <translation>Kodak PhotoCD</translation>
    </message>
    <message>
        <source>Sun Rasterfile</source>
        <translation>Sun 光栅文件</translation>
    </message>
    <message>
        <source>Targa files</source>
        <translation>Targa 文件</translation>
    </message>
    <message>
        <source>Dr.Halo bitmap</source>
        <translation>Dr.Halo 位图</translation>
    </message>
    <message>
        <source>Interchanged File Format</source>
        <translation>交换文件格式</translation>
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
        <translation>高效图像文件</translation>
    </message>
    <message>
        <source>AV1 Image File</source>
        <translation>AV1 图像文件</translation>
    </message>
    <message>
        <source>JPEG XL</source>
        <translation>JPEG XL</translation>
    </message>
    <message>
        <source>Scalable Vector Graphics</source>
        <translation>可缩放矢量图形</translation>
    </message>
    <message>
        <source>Camera Files</source>
        <translation>相机文件</translation>
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
        <translation>位图</translation>
    </message>
    <message>
        <source>a Windows metafile</source>
        <translation>Windows 图元文件</translation>
    </message>
    <message>
        <source>an enhanced metafile</source>
        <translation>增强型图元文件</translation>
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
        <translation>图标</translation>
    </message>
    <message>
        <source>a cursor</source>
        <translation>光标</translation>
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
        <translation>Sun 光栅</translation>
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
        <translation>相机</translation>
    </message>
</context>
<context>
    <name>Leftover</name>
    <message>
        <source>Recovered %1</source>
        <translation>已恢复 %1</translation>
    </message>
    <message>
        <source>Its pictures can&apos;t be read.</source>
        <translation>无法读取其图片。</translation>
    </message>
    <message>
        <source>A newer version of the program left it: its name is not known.</source>
        <translation>由程序的较新版本留下：名称未知。</translation>
    </message>
    <message>
        <source>Its record is damaged: its name is not known.</source>
        <translation>其记录已损坏：名称未知。</translation>
    </message>
    <message>
        <source>Its record is missing: its name is not known.</source>
        <translation>其记录缺失：名称未知。</translation>
    </message>
    <message>
        <source>The last change could not be kept: this is the one before it.</source>
        <translation>无法保留最后一次更改：这是之前的一次。</translation>
    </message>
    <message>
        <source>Not all of its steps back could be kept.</source>
        <translation>未能保留其所有撤销步骤。</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation>新建(&amp;N) ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>打开(&amp;O) ...</translation>
    </message>
    <message>
        <source>&amp;Browse ...</source>
        <translation>浏览(&amp;B) ...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近打开(&amp;R)</translation>
    </message>
    <message>
        <source>Next Pa&amp;ge</source>
        <translation>下一页(&amp;G)</translation>
    </message>
    <message>
        <source>Prev&amp;ious Page</source>
        <translation>上一页(&amp;I)</translation>
    </message>
    <message>
        <source>Reco&amp;ver ...</source>
        <translation>恢复(&amp;V) ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>另存为(&amp;A) ...</translation>
    </message>
    <message>
        <source>Save A&amp;ll ...</source>
        <translation>全部保存(&amp;L) ...</translation>
    </message>
    <message>
        <source>Save for &amp;Web ...</source>
        <translation>存储为 Web 格式(&amp;W) ...</translation>
    </message>
    <message>
        <source>Scann&amp;er</source>
        <translation>扫描仪(&amp;E)</translation>
    </message>
    <message>
        <source>Acquire ...</source>
        <translation>获取 ...</translation>
    </message>
    <message>
        <source>Select Source ...</source>
        <translation>选择来源 ...</translation>
    </message>
    <message>
        <source>Digital Camera</source>
        <translation>数码相机</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>打印预览</translation>
    </message>
    <message>
        <source>Printer Setup ...</source>
        <translation>打印机设置 ...</translation>
    </message>
    <message>
        <source>Print ...</source>
        <translation>打印 ...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Select Non&amp;e</source>
        <translation>取消选择(&amp;E)</translation>
    </message>
    <message>
        <source>In&amp;vert Selection</source>
        <translation>反选(&amp;V)</translation>
    </message>
    <message>
        <source>Create &amp;New Copy</source>
        <translation>创建副本(&amp;N)</translation>
    </message>
    <message>
        <source>Copy Image to Clip&amp;board</source>
        <translation>将图像复制到剪贴板(&amp;B)</translation>
    </message>
    <message>
        <source>Create &amp;from Clipboard</source>
        <translation>从剪贴板创建(&amp;F)</translation>
    </message>
    <message>
        <source>Cr&amp;op</source>
        <translation>裁剪(&amp;O)</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>配方</translation>
    </message>
    <message>
        <source>&amp;Run Recipe ...</source>
        <translation>运行配方(&amp;R) ...</translation>
    </message>
    <message>
        <source>&amp;Save Recipe ...</source>
        <translation>保存配方(&amp;S) ...</translation>
    </message>
    <message>
        <source>Run on a &amp;Folder ...</source>
        <translation>对文件夹运行(&amp;F) ...</translation>
    </message>
    <message>
        <source>I&amp;mage Properties</source>
        <translation>图像属性(&amp;M)</translation>
    </message>
    <message>
        <source>Opt&amp;ions ...</source>
        <translation>选项(&amp;I) ...</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>图像(&amp;I)</translation>
    </message>
    <message>
        <source>Image Size ...</source>
        <translation>图像大小 ...</translation>
    </message>
    <message>
        <source>Canvas Size ...</source>
        <translation>画布大小 ...</translation>
    </message>
    <message>
        <source>Orientation ...</source>
        <translation>方向 ...</translation>
    </message>
    <message>
        <source>Rotate ...</source>
        <translation>旋转 ...</translation>
    </message>
    <message>
        <source>Restore Original</source>
        <translation>恢复原图</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>原始大小</translation>
    </message>
    <message>
        <source>&amp;Quality Size</source>
        <translation>高质量缩放(&amp;Q)</translation>
    </message>
    <message>
        <source>2 x larger</source>
        <translation>放大 2 倍</translation>
    </message>
    <message>
        <source>3 x larger</source>
        <translation>放大 3 倍</translation>
    </message>
    <message>
        <source>4 x larger</source>
        <translation>放大 4 倍</translation>
    </message>
    <message>
        <source>5 x larger</source>
        <translation>放大 5 倍</translation>
    </message>
    <message>
        <source>2 x smaller</source>
        <translation>缩小 2 倍</translation>
    </message>
    <message>
        <source>3 x smaller</source>
        <translation>缩小 3 倍</translation>
    </message>
    <message>
        <source>4 x smaller</source>
        <translation>缩小 4 倍</translation>
    </message>
    <message>
        <source>5 x smaller</source>
        <translation>缩小 5 倍</translation>
    </message>
    <message>
        <source>Quick Rotate</source>
        <translation>快速旋转</translation>
    </message>
    <message>
        <source>Quality Rotate</source>
        <translation>高质量旋转</translation>
    </message>
    <message>
        <source>Flip &amp;Horizontal</source>
        <translation>水平翻转(&amp;H)</translation>
    </message>
    <message>
        <source>Flip &amp;Vertical</source>
        <translation>垂直翻转(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Properties ...</source>
        <translation>属性(&amp;P) ...</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>颜色(&amp;C)</translation>
    </message>
    <message>
        <source>Tweak RGB</source>
        <translation>调整 RGB</translation>
    </message>
    <message>
        <source>Old Photo</source>
        <translation>老照片</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>着色</translation>
    </message>
    <message>
        <source>Sketch</source>
        <translation>素描</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>隔离</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>偏移</translation>
    </message>
    <message>
        <source>Sepia Tone</source>
        <translation>棕褐色调</translation>
    </message>
    <message>
        <source>Hue Stretch</source>
        <translation>色相拉伸</translation>
    </message>
    <message>
        <source>Hue Rotation</source>
        <translation>色相旋转</translation>
    </message>
    <message>
        <source>Grey Rotation</source>
        <translation>灰度旋转</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Hue &amp;&amp; Saturation</source>
        <translation>色相与饱和度</translation>
    </message>
    <message>
        <source>Luminous</source>
        <translation>明度</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>交换</translation>
    </message>
    <message>
        <source>RGB To BRG</source>
        <translation>RGB 转 BRG</translation>
    </message>
    <message>
        <source>RGB To GBR</source>
        <translation>RGB 转 GBR</translation>
    </message>
    <message>
        <source>RGB To RBG</source>
        <translation>RGB 转 RBG</translation>
    </message>
    <message>
        <source>RGB To BGR</source>
        <translation>RGB 转 BGR</translation>
    </message>
    <message>
        <source>RGB To GRB</source>
        <translation>RGB 转 GRB</translation>
    </message>
    <message>
        <source>RGB Banks</source>
        <translation>RGB 通道</translation>
    </message>
    <message>
        <source>Add Colors</source>
        <translation>添加颜色</translation>
    </message>
    <message>
        <source>Soft Red</source>
        <translation>柔和红</translation>
    </message>
    <message>
        <source>Hard Red</source>
        <translation>强烈红</translation>
    </message>
    <message>
        <source>Soft Green</source>
        <translation>柔和绿</translation>
    </message>
    <message>
        <source>Hard Green</source>
        <translation>强烈绿</translation>
    </message>
    <message>
        <source>Soft Blue</source>
        <translation>柔和蓝</translation>
    </message>
    <message>
        <source>Hard Blue</source>
        <translation>强烈蓝</translation>
    </message>
    <message>
        <source>Soft Yellow</source>
        <translation>柔和黄</translation>
    </message>
    <message>
        <source>Hard Yellow</source>
        <translation>强烈黄</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>洋红</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>Retro</source>
        <translation>复古</translation>
    </message>
    <message>
        <source>Spotted</source>
        <translation>斑点</translation>
    </message>
    <message>
        <source>Wet Paper</source>
        <translation>湿纸</translation>
    </message>
    <message>
        <source>Fi&amp;lters</source>
        <translation>滤镜(&amp;L)</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>反相</translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation>灰度</translation>
    </message>
    <message>
        <source>Relief</source>
        <translation>凸起</translation>
    </message>
    <message>
        <source>Erode</source>
        <translation>腐蚀</translation>
    </message>
    <message>
        <source>Dilate</source>
        <translation>膨胀</translation>
    </message>
    <message>
        <source>Painting</source>
        <translation>绘画</translation>
    </message>
    <message>
        <source>Edge Enhance</source>
        <translation>边缘增强</translation>
    </message>
    <message>
        <source>Luminousity</source>
        <translation>明度</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>轻</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>重</translation>
    </message>
    <message>
        <source>Custom ...</source>
        <translation>自定义 ...</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>浮雕</translation>
    </message>
    <message>
        <source>Contour</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>Diffuse</source>
        <translation>扩散</translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation>雕刻</translation>
    </message>
    <message>
        <source>Soften</source>
        <translation>柔化</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>锐化</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>模糊</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>杂色</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Flare</source>
        <translation>光晕</translation>
    </message>
    <message>
        <source>Scanlines</source>
        <translation>扫描线</translation>
    </message>
    <message>
        <source>Effect&amp;s</source>
        <translation>效果(&amp;S)</translation>
    </message>
    <message>
        <source>Haftone</source>
        <translation>半色调</translation>
    </message>
    <message>
        <source>Pixelize</source>
        <translation>像素化</translation>
    </message>
    <message>
        <source>Mosaic</source>
        <translation>马赛克</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Gamma Correction</source>
        <translation>伽马校正</translation>
    </message>
    <message>
        <source>Thermique</source>
        <translation>热成像</translation>
    </message>
    <message>
        <source>X-Black</source>
        <translation>X 黑</translation>
    </message>
    <message>
        <source>Photo Cop</source>
        <translation>影印</translation>
    </message>
    <message>
        <source>Shapes</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>透镜</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>波浪</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>弯曲</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>拉伸</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>平铺</translation>
    </message>
    <message>
        <source>Twirl</source>
        <translation>旋涡</translation>
    </message>
    <message>
        <source>Glass</source>
        <translation>玻璃</translation>
    </message>
    <message>
        <source>Slanting</source>
        <translation>斜纹</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Squary</source>
        <translation>方格</translation>
    </message>
    <message>
        <source>Curtain</source>
        <translation>幕帘</translation>
    </message>
    <message>
        <source>Classy</source>
        <translation>典雅</translation>
    </message>
    <message>
        <source>Whity</source>
        <translation>泛白</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>Image Merging ...</source>
        <translation>图像合并 ...</translation>
    </message>
    <message>
        <source>Screen Capture ...</source>
        <translation>屏幕捕获 ...</translation>
    </message>
    <message>
        <source>Image Textures ...</source>
        <translation>图像纹理 ...</translation>
    </message>
    <message>
        <source>Image Resolution ...</source>
        <translation>图像分辨率 ...</translation>
    </message>
    <message>
        <source>Color Depth ...</source>
        <translation>颜色深度 ...</translation>
    </message>
    <message>
        <source>Save for Web ...</source>
        <translation>存储为 Web 格式 ...</translation>
    </message>
    <message>
        <source>Text Tools ...</source>
        <translation>文字工具 ...</translation>
    </message>
    <message>
        <source>Icon Extractor ...</source>
        <translation>图标提取器 ...</translation>
    </message>
    <message>
        <source>File Associations ...</source>
        <translation>文件关联 ...</translation>
    </message>
    <message>
        <source>Quick Capture</source>
        <translation>快速捕获</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>前景</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Set as Wallpaper</source>
        <translation>设为壁纸</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>&amp;Views</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Tile Horizontally</source>
        <translation>水平平铺</translation>
    </message>
    <message>
        <source>Tile Vertically</source>
        <translation>垂直平铺</translation>
    </message>
    <message>
        <source>Cascade</source>
        <translation>层叠</translation>
    </message>
    <message>
        <source>New View</source>
        <translation>新建视图</translation>
    </message>
    <message>
        <source>Color Box</source>
        <translation>颜色面板</translation>
    </message>
    <message>
        <source>Textures Box</source>
        <translation>纹理面板</translation>
    </message>
    <message>
        <source>Clipboard Box</source>
        <translation>剪贴板面板</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Status Bar</source>
        <translation>状态栏</translation>
    </message>
    <message>
        <source>Side Tools  Bar : Hide n Seek</source>
        <translation>侧边工具栏：自动隐藏</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>效果</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>实用工具</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>滤镜</translation>
    </message>
    <message>
        <source>Store Toolbar Layout</source>
        <translation>保存工具栏布局</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Help ...</source>
        <translation>帮助(&amp;H) ...</translation>
    </message>
    <message>
        <source>&amp;Find a Command ...</source>
        <translation>查找命令(&amp;F) ...</translation>
    </message>
    <message>
        <source>&amp;About Velara Studio</source>
        <translation>关于 Velara Studio(&amp;A)</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Glass: Horizontal</source>
        <translation>玻璃：水平</translation>
    </message>
    <message>
        <source>Luminousity: Light</source>
        <translation>明度：轻</translation>
    </message>
    <message>
        <source>Luminousity: Heavy</source>
        <translation>明度：重</translation>
    </message>
    <message>
        <source>Blur: Light</source>
        <translation>模糊：轻</translation>
    </message>
    <message>
        <source>Emboss: Light</source>
        <translation>浮雕：轻</translation>
    </message>
    <message>
        <source>Contour: Light</source>
        <translation>轮廓：轻</translation>
    </message>
    <message>
        <source>Diffuse: Light</source>
        <translation>扩散：轻</translation>
    </message>
    <message>
        <source>Engrave: Light</source>
        <translation>雕刻：轻</translation>
    </message>
    <message>
        <source>Soften: Heavy</source>
        <translation>柔化：重</translation>
    </message>
    <message>
        <source>Noise: Light</source>
        <translation>杂色：轻</translation>
    </message>
    <message>
        <source>Saturation: Heavy</source>
        <translation>饱和度：重</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>原始大小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Quick rotate</source>
        <translation>快速旋转</translation>
    </message>
    <message>
        <source>Quality rotate</source>
        <translation>高质量旋转</translation>
    </message>
    <message>
        <source>Quality size</source>
        <translation>高质量缩放</translation>
    </message>
    <message>
        <source>Save for web</source>
        <translation>存储为 Web 格式</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>屏幕捕获</translation>
    </message>
    <message>
        <source>Image resolution</source>
        <translation>图像分辨率</translation>
    </message>
    <message>
        <source>Image merging</source>
        <translation>图像合并</translation>
    </message>
    <message>
        <source>Image textures</source>
        <translation>图像纹理</translation>
    </message>
    <message>
        <source>Color depth</source>
        <translation>颜色深度</translation>
    </message>
    <message>
        <source>Text tools</source>
        <translation>文字工具</translation>
    </message>
    <message>
        <source>Icon extractor</source>
        <translation>图标提取器</translation>
    </message>
    <message>
        <source>Quick capture</source>
        <translation>快速捕获</translation>
    </message>
    <message>
        <source>Set as wallpaper</source>
        <translation>设为壁纸</translation>
    </message>
    <message>
        <source>About Velara Studio</source>
        <translation>关于 Velara Studio</translation>
    </message>
    <message>
        <source>Scroll with the hand (H)</source>
        <translation>用抓手滚动 (H)</translation>
    </message>
    <message>
        <source>Zoom in (Ctrl++)</source>
        <translation>放大 (Ctrl++)</translation>
    </message>
    <message>
        <source>Zoom out (Ctrl+-)</source>
        <translation>缩小 (Ctrl+-)</translation>
    </message>
    <message>
        <source>Pictures that were not saved when the program ended</source>
        <translation>程序结束时未保存的图片</translation>
    </message>
    <message>
        <source>The next page or frame of the file, in a window of its own</source>
        <translation>文件的下一页或下一帧，在单独的窗口中打开</translation>
    </message>
    <message>
        <source>The page or frame of the file before this one</source>
        <translation>文件中此页之前的页或帧</translation>
    </message>
    <message>
        <source>What was done to this picture</source>
        <translation>对此图片所做的操作</translation>
    </message>
    <message>
        <source>Writes every changed picture to its own file</source>
        <translation>将每张已更改的图片写入各自的文件</translation>
    </message>
    <message>
        <source>Does the steps of a recipe to this picture, as one</source>
        <translation>将配方的各步骤作为一步应用到此图片</translation>
    </message>
    <message>
        <source>Keeps what was done to this picture, to do it to others</source>
        <translation>保存对此图片所做的操作，以应用到其他图片</translation>
    </message>
    <message>
        <source>Does a recipe to many pictures, beside the editor</source>
        <translation>在编辑器之外将配方应用到多张图片</translation>
    </message>
    <message>
        <source>Mixes each pixel from those one pixel away: too little to hide anything</source>
        <translation>将每个像素与相距一个像素的像素混合：不足以隐藏任何内容</translation>
    </message>
    <message>
        <source>Mixes each pixel from those two pixels away: too little to hide anything</source>
        <translation>将每个像素与相距两个像素的像素混合：不足以隐藏任何内容</translation>
    </message>
    <message>
        <source>Mixes each pixel from those up to two pixels away: too little to hide anything</source>
        <translation>将每个像素与最远两个像素内的像素混合：不足以隐藏任何内容</translation>
    </message>
    <message>
        <source>Squares of one colour: hides a face or a number plate</source>
        <translation>单色方块：可遮盖人脸或车牌</translation>
    </message>
    <message>
        <source>&amp;Keys and Mouse ...</source>
        <translation>按键与鼠标(&amp;K) ...</translation>
    </message>
    <message>
        <source>The manual, at the page of what you are doing</source>
        <translation>手册，打开与当前操作相关的页面</translation>
    </message>
</context>
<context>
    <name>Properties</name>
    <message>
        <source>Profile</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>透镜</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>曝光</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>地点</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>注释</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页数</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>nothing was cut or copied</source>
        <translation>未剪切或复制任何内容</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>What is pasted is larger than the picture.</source>
        <translation>粘贴的内容比图片大。</translation>
    </message>
    <message>
        <source>&amp;Enlarge the picture</source>
        <translation>放大图片(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Keep its size</source>
        <translation>保持原大小(&amp;K)</translation>
    </message>
    <message>
        <source>The screen gave no picture.</source>
        <translation>未能从屏幕获得图片。</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 毫米</translation>
    </message>
    <message numerus="yes">
        <source>
and %n more</source>
        <translation>
            <numerusform>
以及另外 %n 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReadingBox</name>
    <message>
        <source>Reading %1 ...</source>
        <translation>正在读取 %1 ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>it is damaged or not %1 picture</source>
        <translation>它已损坏，或不是 %1 图片</translation>
    </message>
    <message>
        <source>it is damaged, and its reader gave up</source>
        <translation>它已损坏，读取器已放弃</translation>
    </message>
    <message>
        <source>it is damaged, and its reader wanted what no picture needs</source>
        <translation>它已损坏，读取器要求了图片不需要的资源</translation>
    </message>
    <message>
        <source>it is damaged: it has hardly any bytes for its %1 x %2 pixels</source>
        <translation>它已损坏：对于 %1 x %2 像素而言字节数太少</translation>
    </message>
    <message>
        <source>it is damaged: some of its pixels are missing</source>
        <translation>它已损坏：缺少部分像素</translation>
    </message>
    <message>
        <source>it is damaged between its first row and its last</source>
        <translation>它在首行与末行之间已损坏</translation>
    </message>
    <message>
        <source>it is cut off: its end is missing</source>
        <translation>它被截断：缺少末尾</translation>
    </message>
    <message>
        <source>it is wider or higher than 32767 pixels, or has more than 268 million pixels</source>
        <translation>宽或高超过 32767 像素，或总数超过 2.68 亿像素</translation>
    </message>
    <message>
        <source>it needs more memory than reading a picture may take</source>
        <translation>所需内存超过读取图片允许的用量</translation>
    </message>
    <message>
        <source>it is empty or can&apos;t be opened</source>
        <translation>它是空的或无法打开</translation>
    </message>
    <message>
        <source>it has more than two gigabytes</source>
        <translation>它超过 2 GB</translation>
    </message>
    <message>
        <source>its name has no extension to tell what it is</source>
        <translation>其名称没有说明类型的扩展名</translation>
    </message>
    <message>
        <source>there is no reader for .%1 files</source>
        <translation>没有 .%1 文件的读取器</translation>
    </message>
    <message>
        <source>its reader could not be locked in (%1)</source>
        <translation>无法隔离其读取器 (%1)</translation>
    </message>
    <message>
        <source>velara-decode-all, which reads %1 picture, can&apos;t be started</source>
        <translation>无法启动用于读取 %1 图片的 velara-decode-all</translation>
    </message>
    <message>
        <source>this build lacks the library that reads %1 picture</source>
        <translation>此版本缺少读取 %1 图片的库</translation>
    </message>
    <message>
        <source>the library that reads HEIF and AVIF pictures (libheif) is missing</source>
        <translation>缺少读取 HEIF 和 AVIF 图片的库 (libheif)</translation>
    </message>
    <message>
        <source>the library that reads JPEG XL pictures (libjxl) is missing</source>
        <translation>缺少读取 JPEG XL 图片的库 (libjxl)</translation>
    </message>
    <message>
        <source>the fonts that metafiles are drawn with are missing</source>
        <translation>缺少绘制图元文件所用的字体</translation>
    </message>
    <message>
        <source>it has only %1 pages</source>
        <translation>它只有 %1 页</translation>
    </message>
    <message>
        <source>it has only one page</source>
        <translation>它只有一页</translation>
    </message>
    <message>
        <source>reading it was given up</source>
        <translation>已放弃读取</translation>
    </message>
    <message>
        <source>reading it took too long and was stopped</source>
        <translation>读取时间过长，已停止</translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) gave a false answer</source>
        <translation>读取图片的程序 (velara-decode) 给出了错误的答复</translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) can&apos;t be started</source>
        <translation>无法启动读取图片的程序 (velara-decode)</translation>
    </message>
    <message>
        <source>the program that reads pictures (velara-decode) was not found</source>
        <translation>找不到读取图片的程序 (velara-decode)</translation>
    </message>
    <message>
        <source>a sanitizer stopped its reader</source>
        <translation>检查工具停止了其读取器</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有这个文件</translation>
    </message>
    <message>
        <source>there is no permission to read it</source>
        <translation>没有读取权限</translation>
    </message>
    <message>
        <source>the system says &quot;%1&quot;</source>
        <translation>系统提示“%1”</translation>
    </message>
    <message>
        <source>the system tells nothing about it</source>
        <translation>系统没有提供相关信息</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>它是文件夹</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>它不是普通文件</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>it has more than the %1 pixels that limits.conf allows</source>
        <translation>它超过了 limits.conf 允许的 %1 像素</translation>
    </message>
    <message>
        <source>limits.conf has turned .%1 files off</source>
        <translation>limits.conf 已禁用 .%1 文件</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>没有足够的内存</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>no room in the Temp folder</source>
        <translation>临时文件夹空间不足</translation>
    </message>
    <message>
        <source>the Temp folder can&apos;t be written to</source>
        <translation>无法写入临时文件夹</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>溢出</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>除以零</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>下标越界</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>未选择任何内容</translation>
    </message>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation>最小尺寸：2 x 2</translation>
    </message>
    <message>
        <source>Internal Error</source>
        <translation>内部错误</translation>
    </message>
    <message>
        <source>There was an error while saving! Please Restart Velara&apos;s Studio</source>
        <translation>保存时出错！请重新启动 Velara Studio</translation>
    </message>
    <message>
        <source>Collection of ASCII based bitmap</source>
        <translation>ASCII 位图集合</translation>
    </message>
    <message>
        <source>A WebP picture has at most 16383 pixels a side.</source>
        <translation>WebP 图片每边最多 16383 像素。</translation>
    </message>
    <message>
        <source>This facility is currently turned Off!</source>
        <translation>此功能当前已关闭！</translation>
    </message>
    <message>
        <source>I don&apos;t know how to put a DIB on the clipboard! Copy as bitmap instead!!!</source>
        <translation>不知道如何将 DIB 放到剪贴板！请改为复制为位图！</translation>
    </message>
    <message>
        <source>the page can&apos;t be read</source>
        <translation>无法读取该页</translation>
    </message>
    <message>
        <source>the page can&apos;t be written</source>
        <translation>无法写入该页</translation>
    </message>
    <message>
        <source>the file can&apos;t be written</source>
        <translation>无法写入该文件</translation>
    </message>
    <message>
        <source>the print server does not answer</source>
        <translation>打印服务器没有响应</translation>
    </message>
    <message>
        <source>there is no print server</source>
        <translation>没有打印服务器</translation>
    </message>
    <message>
        <source>there is no printer %1 any more</source>
        <translation>打印机 %1 已不存在</translation>
    </message>
    <message>
        <source>the print server has not taken the page</source>
        <translation>打印服务器没有接受该页</translation>
    </message>
    <message>
        <source>%1 refused the page</source>
        <translation>%1 拒绝了该页</translation>
    </message>
    <message>
        <source>The printer %1 is paused. The page waits in its queue.</source>
        <translation>打印机 %1 已暂停。该页正在其队列中等待。</translation>
    </message>
    <message>
        <source>The page is held in the queue of the printer %1.</source>
        <translation>该页被保留在打印机 %1 的队列中。</translation>
    </message>
    <message>
        <source>The picture of the screen is all black.</source>
        <translation>屏幕图片全黑。</translation>
    </message>
    <message>
        <source>a profile that can&apos;t be read</source>
        <translation>无法读取的配置文件</translation>
    </message>
    <message>
        <source>%1 bits a pixel in the file</source>
        <translation>文件中每像素 %1 位</translation>
    </message>
    <message>
        <source>%1 x %2 dots per inch</source>
        <translation>每英寸 %1 x %2 点</translation>
    </message>
    <message>
        <source>it is too large for a recipe</source>
        <translation>它太大，不能作为配方</translation>
    </message>
    <message>
        <source>a recipe begins with &quot;%1&quot;</source>
        <translation>配方以“%1”开头</translation>
    </message>
    <message>
        <source>the recipe is of version %1, and this program knows those up to %2</source>
        <translation>配方版本为 %1，本程序支持到 %2</translation>
    </message>
    <message>
        <source>%1 is no step; of the options only %2 SHAPE is</source>
        <translation>%1 不是步骤；选项中只有 %2 SHAPE 可以</translation>
    </message>
    <message>
        <source>%1 is a command word and takes no arguments</source>
        <translation>%1 是命令词，不带参数</translation>
    </message>
    <message>
        <source>the closing bracket is missing</source>
        <translation>缺少右括号</translation>
    </message>
    <message>
        <source>there is no pixel in it</source>
        <translation>其中没有像素</translation>
    </message>
    <message>
        <source>PBM, PGM and PPM: If the bitmap has a bit depth of 1, the file is saved as a PBM file. If the bitmap has a bit depth of 8, the file is saved as a PGM file. If the bitmap has a bit depth of 24, the file is saved as a PPM file. Other bit depths are not supported. The file you requested is saved as 24-bit True Color (.ppm) format.</source>
        <translation>PBM、PGM 和 PPM：位深度为 1 时，文件保存为 PBM；为 8 时，保存为 PGM；为 24 时，保存为 PPM。不支持其他位深度。您请求的文件已保存为 24 位真彩色 (.ppm) 格式。</translation>
    </message>
    <message>
        <source>it needs %1 of memory, more than half of the %2 that are free</source>
        <translation>需要 %1 内存，超过空闲的 %2 的一半</translation>
    </message>
    <message>
        <source>the picture would have %1</source>
        <translation>图片将有 %1</translation>
    </message>
    <message>
        <source>no pixels</source>
        <translation>零像素</translation>
    </message>
    <message>
        <source>%1 x %2 pixels; a side has at most %3</source>
        <translation>%1 x %2 像素；每边最多 %3</translation>
    </message>
    <message>
        <source>%1 megapixels (%2 x %3 pixels); at most %4 are possible</source>
        <translation>%1 百万像素（%2 x %3 像素）；最多 %4</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>无法读取 %1</translation>
    </message>
    <message>
        <source>its pixels are of a kind that isn&apos;t read: %1 x %2 bits</source>
        <translation>其像素类型不受支持：%1 x %2 位</translation>
    </message>
    <message>
        <source>it has fewer inks than cyan, magenta and yellow</source>
        <translation>其油墨少于青、品红和黄三种</translation>
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
        <translation>新建</translation>
    </message>
    <message>
        <source>Windows 256</source>
        <translation>Windows 256</translation>
    </message>
    <message>
        <source>GIF-2 Colors</source>
        <translation>GIF-2 色</translation>
    </message>
    <message>
        <source>2 Colors</source>
        <translation>2 色</translation>
    </message>
    <message>
        <source>GIF-4 Colors</source>
        <translation>GIF-4 色</translation>
    </message>
    <message>
        <source>4 Colors</source>
        <translation>4 色</translation>
    </message>
    <message>
        <source>GIF-8 Colors</source>
        <translation>GIF-8 色</translation>
    </message>
    <message>
        <source>8 Colors</source>
        <translation>8 色</translation>
    </message>
    <message>
        <source>GIF-16 Colors</source>
        <translation>GIF-16 色</translation>
    </message>
    <message>
        <source>16 Colors</source>
        <translation>16 色</translation>
    </message>
    <message>
        <source>GIF-32 Colors</source>
        <translation>GIF-32 色</translation>
    </message>
    <message>
        <source>32 Colors</source>
        <translation>32 色</translation>
    </message>
    <message>
        <source>GIF-64 Colors</source>
        <translation>GIF-64 色</translation>
    </message>
    <message>
        <source>64 Colors</source>
        <translation>64 色</translation>
    </message>
    <message>
        <source>GIF-128 Colors</source>
        <translation>GIF-128 色</translation>
    </message>
    <message>
        <source>128 Colors</source>
        <translation>128 色</translation>
    </message>
    <message>
        <source>GIF-256 Colors</source>
        <translation>GIF-256 色</translation>
    </message>
    <message>
        <source>256 Colors</source>
        <translation>256 色</translation>
    </message>
    <message>
        <source>BMP-2 Colors</source>
        <translation>BMP-2 色</translation>
    </message>
    <message>
        <source>BMP-16 Colors</source>
        <translation>BMP-16 色</translation>
    </message>
    <message>
        <source>BMP-256 Colors</source>
        <translation>BMP-256 色</translation>
    </message>
    <message>
        <source>BMP-16 bit</source>
        <translation>BMP-16 位</translation>
    </message>
    <message>
        <source>16 bit</source>
        <translation>16 位</translation>
    </message>
    <message>
        <source>BMP-24 bit</source>
        <translation>BMP-24 位</translation>
    </message>
    <message>
        <source>24 bit</source>
        <translation>24 位</translation>
    </message>
    <message>
        <source>PNG-8 bit</source>
        <translation>PNG-8 位</translation>
    </message>
    <message>
        <source>8 bit</source>
        <translation>8 位</translation>
    </message>
    <message>
        <source>PNG-24 bit</source>
        <translation>PNG-24 位</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>PCX-24 bit (Compressed)</source>
        <translation>PCX-24 位（压缩）</translation>
    </message>
    <message>
        <source>PCX-24 bit (Uncompressed)</source>
        <translation>PCX-24 位（未压缩）</translation>
    </message>
    <message>
        <source>TGA-24 bit (Compressed)</source>
        <translation>TGA-24 位（压缩）</translation>
    </message>
    <message>
        <source>TGA-24 bit (Uncompressed)</source>
        <translation>TGA-24 位（未压缩）</translation>
    </message>
    <message>
        <source>TIFF-24 bit (Uncompressed)</source>
        <translation>TIFF-24 位（未压缩）</translation>
    </message>
    <message>
        <source>WebP</source>
        <translation>WebP</translation>
    </message>
    <message>
        <source>WebP (Lossless)</source>
        <translation>WebP（无损）</translation>
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
        <translation>MS 映射</translation>
    </message>
    <message>
        <source>Optimal</source>
        <translation>最佳</translation>
    </message>
    <message>
        <source>Fixed Color</source>
        <translation>固定颜色</translation>
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
        <translation>固定灰度</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>二值</translation>
    </message>
    <message>
        <source>Ordered</source>
        <translation>有序</translation>
    </message>
    <message>
        <source>Haftone</source>
        <translation>半色调</translation>
    </message>
    <message>
        <source>Forward Diag</source>
        <translation>正对角</translation>
    </message>
    <message>
        <source>Backward Diag</source>
        <translation>反对角</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>奇</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>偶</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation>相等</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation>灰度</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>差</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message>
        <source>Superb</source>
        <translation>极佳</translation>
    </message>
</context>
<context>
    <name>Search words</name>
    <message>
        <source>blank empty create</source>
        <translation>空白 新建 创建</translation>
    </message>
    <message>
        <source>load import file</source>
        <translation>加载 导入 文件</translation>
    </message>
    <message>
        <source>scan paper</source>
        <translation>扫描 纸张</translation>
    </message>
    <message>
        <source>screenshot whole screen</source>
        <translation>截图 全屏</translation>
    </message>
    <message>
        <source>back revert mistake</source>
        <translation>返回 还原 错误</translation>
    </message>
    <message>
        <source>again forward</source>
        <translation>再次 前进</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>复制副本</translation>
    </message>
    <message>
        <source>paste as new picture</source>
        <translation>粘贴为新图片</translation>
    </message>
    <message>
        <source>resize scale percent width height pixels larger smaller</source>
        <translation>调整大小 缩放 百分比 宽度 高度 像素 放大 缩小</translation>
    </message>
    <message>
        <source>border margin room enlarge</source>
        <translation>边框 边距 空间 扩大</translation>
    </message>
    <message>
        <source>turn portrait landscape</source>
        <translation>旋转 纵向 横向</translation>
    </message>
    <message>
        <source>turn angle degrees straighten horizon</source>
        <translation>旋转 角度 拉直 地平线</translation>
    </message>
    <message>
        <source>export rename convert format</source>
        <translation>导出 重命名 转换 格式</translation>
    </message>
    <message>
        <source>insert clipboard</source>
        <translation>插入 剪贴板</translation>
    </message>
    <message>
        <source>cut out trim margins</source>
        <translation>裁切 修剪 边距</translation>
    </message>
    <message>
        <source>settings preferences configure</source>
        <translation>设置 首选项 配置</translation>
    </message>
    <message>
        <source>overlay blend double exposure two pictures</source>
        <translation>叠加 混合 双重曝光 两张图片</translation>
    </message>
    <message>
        <source>resize</source>
        <translation>调整大小</translation>
    </message>
    <message>
        <source>export gif jpeg png small kilobytes compress quality</source>
        <translation>导出 gif jpeg png 缩小 千字节 压缩 质量</translation>
    </message>
    <message>
        <source>palette indexed 256 16 colours reduce dither</source>
        <translation>调色板 索引 256 16 颜色 减少 抖动</translation>
    </message>
    <message>
        <source>write letters caption font</source>
        <translation>书写 字母 标题 字体</translation>
    </message>
    <message>
        <source>desktop background</source>
        <translation>桌面背景</translation>
    </message>
    <message>
        <source>thumbnails folder gallery</source>
        <translation>缩略图 文件夹 图库</translation>
    </message>
    <message>
        <source>crash unsaved restore lost</source>
        <translation>崩溃 未保存 还原 丢失</translation>
    </message>
    <message>
        <source>screenshot window screen</source>
        <translation>截图 窗口 屏幕</translation>
    </message>
    <message>
        <source>ico extract</source>
        <translation>ico 提取</translation>
    </message>
    <message>
        <source>tiff gif animation icon</source>
        <translation>tiff gif 动画 图标</translation>
    </message>
    <message>
        <source>default program double click</source>
        <translation>默认程序 双击</translation>
    </message>
    <message>
        <source>quit close</source>
        <translation>退出 关闭</translation>
    </message>
    <message>
        <source>second window</source>
        <translation>第二个窗口</translation>
    </message>
    <message>
        <source>exif camera date place gps profile metadata information facts</source>
        <translation>exif 相机 日期 地点 gps 配置文件 元数据 信息</translation>
    </message>
    <message>
        <source>version licence</source>
        <translation>版本 许可证</translation>
    </message>
    <message>
        <source>deselect</source>
        <translation>取消选择</translation>
    </message>
    <message>
        <source>undo steps states back</source>
        <translation>撤销 步骤 状态 返回</translation>
    </message>
    <message>
        <source>every open</source>
        <translation>每个 打开</translation>
    </message>
    <message>
        <source>macro action script batch replay</source>
        <translation>宏 动作 脚本 批处理 重放</translation>
    </message>
    <message>
        <source>macro action script batch record</source>
        <translation>宏 动作 脚本 批处理 录制</translation>
    </message>
    <message>
        <source>batch many pictures macro convert all</source>
        <translation>批处理 多张图片 宏 转换 全部</translation>
    </message>
    <message>
        <source>negative</source>
        <translation>负片</translation>
    </message>
    <message>
        <source>black and white grey monochrome</source>
        <translation>黑白 灰色 单色</translation>
    </message>
    <message>
        <source>crisp focus</source>
        <translation>清晰 对焦</translation>
    </message>
    <message>
        <source>soft unsharp</source>
        <translation>柔和 不清晰</translation>
    </message>
    <message>
        <source>vintage brown</source>
        <translation>复古 棕色</translation>
    </message>
    <message>
        <source>vintage brown old</source>
        <translation>复古 棕色 旧</translation>
    </message>
    <message>
        <source>mirror left right</source>
        <translation>镜像 左右</translation>
    </message>
    <message>
        <source>mirror top bottom upside down</source>
        <translation>镜像 上下 颠倒</translation>
    </message>
    <message>
        <source>zoom 100 % actual pixels</source>
        <translation>缩放 100 % 实际像素</translation>
    </message>
    <message>
        <source>turn right clockwise</source>
        <translation>右转 顺时针</translation>
    </message>
    <message>
        <source>turn upside down</source>
        <translation>上下颠倒</translation>
    </message>
    <message>
        <source>turn left counterclockwise</source>
        <translation>左转 逆时针</translation>
    </message>
    <message>
        <source>tint hue</source>
        <translation>染色 色相</translation>
    </message>
    <message>
        <source>brightness lighter darker exposure</source>
        <translation>亮度 更亮 更暗 曝光</translation>
    </message>
    <message>
        <source>lighter darker exposure</source>
        <translation>更亮 更暗 曝光</translation>
    </message>
    <message>
        <source>fade dull</source>
        <translation>褪色 暗淡</translation>
    </message>
    <message>
        <source>hide a face censor anonymous number plate mosaic blocks</source>
        <translation>遮脸 打码 匿名 车牌 马赛克 方块</translation>
    </message>
    <message>
        <source>recolour change colour</source>
        <translation>重新着色 更改颜色</translation>
    </message>
    <message>
        <source>grain</source>
        <translation>颗粒</translation>
    </message>
    <message>
        <source>manual guide documentation how</source>
        <translation>手册 指南 文档 如何</translation>
    </message>
    <message>
        <source>keys shortcuts keyboard</source>
        <translation>按键 快捷键 键盘</translation>
    </message>
</context>
<context>
    <name>Textures</name>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Canvas</source>
        <translation>画布</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>亚麻</translation>
    </message>
    <message>
        <source>Brick</source>
        <translation>砖</translation>
    </message>
    <message>
        <source>Stone</source>
        <translation>石</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>沙</translation>
    </message>
    <message>
        <source>Wood</source>
        <translation>木</translation>
    </message>
    <message>
        <source>Weave</source>
        <translation>编织</translation>
    </message>
    <message>
        <source>Ripple</source>
        <translation>涟漪</translation>
    </message>
    <message>
        <source>Leather</source>
        <translation>皮革</translation>
    </message>
    <message>
        <source>Frosted glass</source>
        <translation>磨砂玻璃</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Esc or right button: drop</source>
        <translation>Esc 或右键：放弃</translation>
    </message>
    <message>
        <source>Space: fix and go on · Esc: drop</source>
        <translation>空格：固定并继续 · Esc：放弃</translation>
    </message>
    <message>
        <source>Click: lay down · Space: fix and go on · Esc: drop</source>
        <translation>单击：放下 · 空格：固定并继续 · Esc：放弃</translation>
    </message>
    <message>
        <source>Space: corner · Enter: close · Esc: drop</source>
        <translation>空格：顶点 · Enter：闭合 · Esc：放弃</translation>
    </message>
    <message>
        <source>Click: corner · Enter or double click: close · Esc: drop</source>
        <translation>单击：顶点 · Enter 或双击：闭合 · Esc：放弃</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>拾取颜色</translation>
    </message>
    <message>
        <source>Move the selection</source>
        <translation>移动选区</translation>
    </message>
    <message>
        <source>What moves</source>
        <translation>移动的对象</translation>
    </message>
    <message>
        <source>Move Selection Only</source>
        <translation>仅移动选区</translation>
    </message>
    <message>
        <source>Move Content Only</source>
        <translation>仅移动内容</translation>
    </message>
    <message>
        <source>&amp;Use this intensity</source>
        <translation>使用此强度(&amp;U)</translation>
    </message>
    <message>
        <source>Instead of the selection&apos;s pressure</source>
        <translation>代替选区的压力</translation>
    </message>
    <message>
        <source>Opaque Intensity</source>
        <translation>不透明强度</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Mode of selecting</source>
        <translation>选择模式</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>减去</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Shape of the selection</source>
        <translation>选区形状</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>椭圆</translation>
    </message>
    <message>
        <source>Polygon/Free hand</source>
        <translation>多边形/徒手</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>压力</translation>
    </message>
    <message>
        <source>&amp;Move selection</source>
        <translation>移动选区(&amp;M)</translation>
    </message>
    <message>
        <source>Move region / move pixels</source>
        <translation>移动区域 / 移动像素</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>画笔</translation>
    </message>
    <message>
        <source>Mode of the brush</source>
        <translation>画笔模式</translation>
    </message>
    <message>
        <source>Current color</source>
        <translation>当前颜色</translation>
    </message>
    <message>
        <source>Current stamp</source>
        <translation>当前图章</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>变暗</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>变亮</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>锐化</translation>
    </message>
    <message>
        <source>Soften</source>
        <translation>柔化</translation>
    </message>
    <message>
        <source>Soften (Overlay)</source>
        <translation>柔化（叠加）</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>强度</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>填充</translation>
    </message>
    <message>
        <source>What fills</source>
        <translation>填充内容</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>容差</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线</translation>
    </message>
    <message>
        <source>Free hand</source>
        <translation>徒手</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>正方形</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>圆</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>多边形</translation>
    </message>
    <message>
        <source>Pol. sides</source>
        <translation>边数</translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation>喷枪</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>清晰度</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>图章</translation>
    </message>
    <message>
        <source>&amp;Mask color :</source>
        <translation>蒙版颜色(&amp;M)：</translation>
    </message>
    <message>
        <source>Use mask color</source>
        <translation>使用蒙版颜色</translation>
    </message>
    <message>
        <source>Mask color</source>
        <translation>蒙版颜色</translation>
    </message>
    <message>
        <source>&amp;Stamp mask</source>
        <translation>图章蒙版(&amp;S)</translation>
    </message>
    <message>
        <source>Current color stamp</source>
        <translation>当前颜色图章</translation>
    </message>
    <message>
        <source>&amp;Clear back</source>
        <translation>清除背景(&amp;C)</translation>
    </message>
    <message>
        <source>Clear stamp track</source>
        <translation>清除图章轨迹</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>渐变</translation>
    </message>
    <message>
        <source>Form of the gradient</source>
        <translation>渐变形状</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>线性</translation>
    </message>
    <message>
        <source>Circular</source>
        <translation>圆形</translation>
    </message>
    <message>
        <source>First color</source>
        <translation>第一颜色</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>透明</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>第二颜色</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Amount %</source>
        <translation>数量 %</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>铅笔</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
</context>
<context>
    <name>velara::Appearance</name>
    <message>
        <source>As the desktop</source>
        <translation>跟随桌面</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>High contrast, light</source>
        <translation>高对比度，浅色</translation>
    </message>
    <message>
        <source>High contrast, dark</source>
        <translation>高对比度，深色</translation>
    </message>
</context>
<context>
    <name>velara::Bars</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销%1(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做%1(&amp;R)</translation>
    </message>
    <message>
        <source>Not available yet</source>
        <translation>尚不可用</translation>
    </message>
    <message>
        <source> (not available yet)</source>
        <translation> （尚不可用）</translation>
    </message>
</context>
<context>
    <name>velara::Capture</name>
    <message>
        <source>Capture</source>
        <translation>捕获</translation>
    </message>
    <message>
        <source>Waiting for the desktop&apos;s picture ...</source>
        <translation>正在等待桌面图片 ...</translation>
    </message>
    <message>
        <source>the screen gave no picture</source>
        <translation>未能从屏幕获得图片</translation>
    </message>
</context>
<context>
    <name>velara::Documents</name>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
</context>
<context>
    <name>velara::FEffect</name>
    <message>
        <source>Effects</source>
        <translation>效果</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>显示 </translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Apply the effect</source>
        <translation>应用效果</translation>
    </message>
</context>
<context>
    <name>velara::FGradient</name>
    <message>
        <source>The gradient</source>
        <translation>渐变</translation>
    </message>
</context>
<context>
    <name>velara::FStamp</name>
    <message>
        <source>Stamp sub-Folder Not Found!</source>
        <translation>未找到图章子文件夹！</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>图章</translation>
    </message>
    <message>
        <source>Stamp files</source>
        <translation>图章文件</translation>
    </message>
    <message>
        <source>The chosen stamp</source>
        <translation>所选图章</translation>
    </message>
    <message>
        <source>&lt;Stamps&gt; subfolder not found.</source>
        <translation>未找到 &lt;Stamps&gt; 子文件夹。</translation>
    </message>
</context>
<context>
    <name>velara::FWeb</name>
    <message>
        <source>Original</source>
        <translation>原图</translation>
    </message>
    <message>
        <source>Optimized</source>
        <translation>优化后</translation>
    </message>
    <message>
        <source>Original, above the optimized</source>
        <translation>原图，在优化图上方</translation>
    </message>
    <message>
        <source>Optimized, below the original</source>
        <translation>优化后，在原图下方</translation>
    </message>
    <message>
        <source>Customized Save Options </source>
        <translation>自定义保存选项 </translation>
    </message>
    <message>
        <source>Files of this format have no place for it</source>
        <translation>此格式的文件没有存放它的位置</translation>
    </message>
    <message>
        <source>Enter value between 1 to 99 !</source>
        <translation>请输入 1 到 99 之间的值！</translation>
    </message>
    <message>
        <source>Please Choose a higher image format!</source>
        <translation>请选择更高的图像格式！</translation>
    </message>
    <message>
        <source>The current format cannot be applied to the image!</source>
        <translation>当前格式无法应用于该图像！</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written%2.</source>
        <translation>无法写入 %1%2。</translation>
    </message>
    <message>
        <source>%L1 bytes</source>
        <translation>%L1 字节</translation>
    </message>
    <message>
        <source>%1 % of the original file</source>
        <translation>原文件的 %1 %</translation>
    </message>
    <message>
        <source>no loss</source>
        <translation>无损失</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>No quality makes it as small as %1 KB.</source>
        <translation>任何质量都无法缩小到 %1 KB。</translation>
    </message>
    <message>
        <source>No number of colors makes it as small as %1 KB.</source>
        <translation>任何颜色数都无法缩小到 %1 KB。</translation>
    </message>
    <message>
        <source>Save Optimized As</source>
        <translation>优化图像另存为</translation>
    </message>
    <message>
        <source>File format</source>
        <translation>文件格式</translation>
    </message>
    <message>
        <source>Choose a format</source>
        <translation>选择格式</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>格式(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;All formats ...</source>
        <translation>所有格式(&amp;A) ...</translation>
    </message>
    <message>
        <source>Size and loss of this picture in every format</source>
        <translation>此图片在各格式下的大小与损失</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>调色板</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>按格式的默认</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>抖动</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>颜色模式</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>调色板(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Dither</source>
        <translation>抖动(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>模式(&amp;M)</translation>
    </message>
    <message>
        <source>Flip &amp;horizontal</source>
        <translation>水平翻转(&amp;H)</translation>
    </message>
    <message>
        <source>Flip &amp;vertical</source>
        <translation>垂直翻转(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>反相(&amp;I)</translation>
    </message>
    <message>
        <source>I&amp;nterlaced</source>
        <translation>交错(&amp;N)</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>JPEG 质量</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Custom  1 To 99</source>
        <translation>自定义 1 到 99</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>质量(&amp;Q)</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>文件大小</translation>
    </message>
    <message>
        <source>Fit to so many KB</source>
        <translation>适合到若干 KB</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合</translation>
    </message>
    <message>
        <source>Fit &amp;to</source>
        <translation>适合(&amp;T)</translation>
    </message>
    <message>
        <source>Camera data</source>
        <translation>相机数据</translation>
    </message>
    <message>
        <source>&amp;Keep camera data</source>
        <translation>保留相机数据(&amp;K)</translation>
    </message>
    <message>
        <source>without the pla&amp;ce</source>
        <translation>不含地点(&amp;C)</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>深度</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>两者</translation>
    </message>
    <message>
        <source>Exact size and loss</source>
        <translation>精确大小与损失</translation>
    </message>
    <message>
        <source>The file is being written</source>
        <translation>正在写入文件</translation>
    </message>
    <message numerus="yes">
        <source>%n colors</source>
        <translation>
            <numerusform>%n 种颜色</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::FolderRun</name>
    <message>
        <source>
It ended before its time.</source>
        <translation>
它提前结束了。</translation>
    </message>
</context>
<context>
    <name>velara::FrameRequests</name>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>没有操作“%1”。</translation>
    </message>
    <message>
        <source> can&apos;t be read: it is no file of this computer</source>
        <translation> 无法读取：它不是这台计算机上的文件</translation>
    </message>
</context>
<context>
    <name>velara::MaskChoice</name>
    <message>
        <source>Mask color</source>
        <translation>蒙版颜色</translation>
    </message>
    <message>
        <source>What has this color becomes transparent</source>
        <translation>此颜色的部分将变为透明</translation>
    </message>
</context>
<context>
    <name>velara::PreviewPane</name>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>There is no permission to look into it.</source>
        <translation>没有查看它的权限。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>正在读取 ...</translation>
    </message>
    <message>
        <source>No picture is selected.</source>
        <translation>没有选择图片。</translation>
    </message>
    <message>
        <source>Not a picture.</source>
        <translation>不是图片。</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 像素</translation>
    </message>
</context>
<context>
    <name>velara::Recipes</name>
    <message>
        <source>Recipe (*.recipe)</source>
        <translation>配方 (*.recipe)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Nothing was done to this picture yet.</source>
        <translation>尚未对此图片做任何操作。</translation>
    </message>
    <message>
        <source>All of this was made by hand: there is nothing that could be done to another picture.</source>
        <translation>这些全部是手工完成的：没有可应用到其他图片的步骤。</translation>
    </message>
    <message>
        <source>%1 of %2 steps were made by hand, and can&apos;t be done to another picture:
%3</source>
        <translation>%2 个步骤中有 %1 个是手工完成的，无法应用到其他图片：
%3</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>配方</translation>
    </message>
    <message>
        <source>&amp;Leave them out</source>
        <translation>略去它们(&amp;L)</translation>
    </message>
    <message>
        <source>The command is on the clipboard.</source>
        <translation>命令已在剪贴板中。</translation>
    </message>
    <message>
        <source>Save recipe</source>
        <translation>保存配方</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>已另存为 %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>Run recipe</source>
        <translation>运行配方</translation>
    </message>
    <message>
        <source>: there is no step in it</source>
        <translation>：其中没有步骤</translation>
    </message>
    <message>
        <source>The picture is as it was. The recipe %1 ended:
%2</source>
        <translation>图片保持原样。配方 %1 已结束：
%2</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>重放</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message numerus="yes">
        <source>Run on %n pictures.</source>
        <translation>
            <numerusform>已在 %n 张图片上运行。</numerusform>
        </translation>
    </message>
    <message>
        <source>These pictures are as they were:
</source>
        <translation>以下图片保持原样：
</translation>
    </message>
    <message>
        <source>No other picture is open.</source>
        <translation>没有打开其他图片。</translation>
    </message>
    <message>
        <source>What was done to %1</source>
        <translation>对 %1 所做的操作</translation>
    </message>
    <message>
        <source>Another file ...</source>
        <translation>其他文件 ...</translation>
    </message>
    <message>
        <source>Choose a recipe</source>
        <translation>选择配方</translation>
    </message>
    <message>
        <source>This recipe can&apos;t be run:
</source>
        <translation>此配方无法运行：
</translation>
    </message>
</context>
<context>
    <name>velara::Recovery</name>
    <message>
        <source>Changed on %1</source>
        <translation>更改于 %1</translation>
    </message>
    <message>
        <source>1 step</source>
        <translation>1 个步骤</translation>
    </message>
    <message>
        <source>texts that are not merged yet</source>
        <translation>尚未合并的文字</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>没有可恢复的内容。</translation>
    </message>
    <message>
        <source>Discard the unsaved changes of %1?
They can&apos;t be recovered after that.</source>
        <translation>要丢弃 %1 未保存的更改吗？
此后将无法恢复。</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>丢弃(&amp;D)</translation>
    </message>
    <message numerus="yes">
        <source>%n steps</source>
        <translation>
            <numerusform>%n 个步骤</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n 张图片</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::SaneScanner</name>
    <message>
        <source>The program velara-scan is missing.</source>
        <translation>缺少程序 velara-scan。</translation>
    </message>
    <message>
        <source>The scanner&apos;s driver has failed.</source>
        <translation>扫描仪驱动程序出错。</translation>
    </message>
</context>
<context>
    <name>velara::SaveDialog</name>
    <message>
        <source>&quot;%1&quot; has the ending of another kind of file.</source>
        <translation>“%1”的扩展名属于另一种文件。</translation>
    </message>
    <message>
        <source>Save as &quot;%1&quot;</source>
        <translation>另存为“%1”</translation>
    </message>
    <message>
        <source>Keep &quot;%1&quot;</source>
        <translation>保留“%1”</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 已存在。
是否替换它？</translation>
    </message>
</context>
<context>
    <name>velara::Startup</name>
    <message>
        <source>Velara Studio is already running!</source>
        <translation>Velara Studio 已在运行！</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be written to.
Steps back stay in memory, as many as fit, and settings will not be kept.</source>
        <translation>无法写入文件夹“%1”。
撤销步骤将尽量保留在内存中，设置不会保存。</translation>
    </message>
</context>
<context>
    <name>velara::fAboutFacts</name>
    <message>
        <source>picture files</source>
        <translation>图片文件</translation>
    </message>
    <message>
        <source>GIF and palettes</source>
        <translation>GIF 与调色板</translation>
    </message>
    <message>
        <source>metafiles</source>
        <translation>图元文件</translation>
    </message>
    <message>
        <source>scanners</source>
        <translation>扫描仪</translation>
    </message>
    <message>
        <source>printers</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>vector arithmetic</source>
        <translation>向量运算</translation>
    </message>
    <message>
        <source>the cage of the decoders</source>
        <translation>解码器的隔离</translation>
    </message>
    <message>
        <source>icons</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>windows</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>&lt;b&gt;Velara Studio %1&lt;/b&gt;&lt;p&gt;Free software under the GNU General Public License, version 2 or later, without any warranty.&lt;/p&gt;&lt;p&gt;It stands on&lt;/p&gt;</source>
        <translation>&lt;b&gt;Velara Studio %1&lt;/b&gt;&lt;p&gt;依据 GNU 通用公共许可证第 2 版或更新版本发布的自由软件，不提供任何担保。&lt;/p&gt;&lt;p&gt;它使用了&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Version, license and libraries</source>
        <translation>版本、许可证和库</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
</context>
<context>
    <name>velara::fAcquire</name>
    <message>
        <source>Acquire</source>
        <translation>获取</translation>
    </message>
    <message>
        <source>Select S&amp;ource ...</source>
        <translation>选择来源(&amp;O) ...</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>扫描进度</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>扫描(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>No source</source>
        <translation>无来源</translation>
    </message>
    <message>
        <source>Looking for scanners ...</source>
        <translation>正在查找扫描仪 ...</translation>
    </message>
    <message>
        <source>no scanner was found</source>
        <translation>未找到扫描仪</translation>
    </message>
    <message>
        <source>Asking the scanner ...</source>
        <translation>正在查询扫描仪 ...</translation>
    </message>
    <message>
        <source>Scanning ...</source>
        <translation>正在扫描 ...</translation>
    </message>
    <message>
        <source>Scanning page %1 ...</source>
        <translation>正在扫描第 %1 页 ...</translation>
    </message>
    <message>
        <source>The scanner says: </source>
        <translation>扫描仪报告： </translation>
    </message>
</context>
<context>
    <name>velara::fAssociation</name>
    <message>
        <source>File Association</source>
        <translation>文件关联</translation>
    </message>
    <message>
        <source>The picture formats that Velara Studio knows. Which program opens
a file is chosen in the settings of your desktop.</source>
        <translation>Velara Studio 支持的图片格式。用哪个程序打开
文件由您桌面的设置决定。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>格式</translation>
    </message>
</context>
<context>
    <name>velara::fBed</name>
    <message>
        <source>Preview of the scanner&apos;s bed</source>
        <translation>扫描仪平台预览</translation>
    </message>
</context>
<context>
    <name>velara::fBrowse</name>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Pictures of the folder</source>
        <translation>文件夹中的图片</translation>
    </message>
    <message>
        <source>Browse For Graphic Filles</source>
        <translation>浏览图像文件</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>起始(&amp;H)</translation>
    </message>
    <message>
        <source>Last folders</source>
        <translation>最近的文件夹</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>已选</translation>
    </message>
</context>
<context>
    <name>velara::fCanvas</name>
    <message>
        <source>Canvas size</source>
        <translation>画布大小</translation>
    </message>
    <message>
        <source>Proportions</source>
        <translation>比例</translation>
    </message>
    <message>
        <source>Defined</source>
        <translation>预定义</translation>
    </message>
    <message>
        <source>Choose a step</source>
        <translation>选择步骤</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中间</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>What is Canvas Size?</source>
        <translation>什么是画布大小？</translation>
    </message>
    <message>
        <source>The canvas is the area that the picture stands on. A larger canvas adds black room around the picture, a smaller one cuts its edges; the pixels themselves keep their size. Drag the picture, or press an arrow, to say where it stands.</source>
        <translation>画布是图片所在的区域。较大的画布会在图片周围添加黑色空白，较小的画布会裁去其边缘；像素本身大小不变。拖动图片或按方向键来决定图片的位置。</translation>
    </message>
</context>
<context>
    <name>velara::fCanvasView</name>
    <message>
        <source>Canvas</source>
        <translation>画布</translation>
    </message>
    <message>
        <source>Picture on the canvas</source>
        <translation>画布上的图片</translation>
    </message>
</context>
<context>
    <name>velara::fCapture</name>
    <message>
        <source>Capture Screen</source>
        <translation>捕获屏幕</translation>
    </message>
    <message>
        <source>How to capture</source>
        <translation>捕获方式</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>&amp;Capture</source>
        <translation>捕获(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;ustom</source>
        <translation>自定义(&amp;U)</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>The whole screen</source>
        <translation>整个屏幕</translation>
    </message>
    <message>
        <source>A rectangle of the screen</source>
        <translation>屏幕的矩形区域</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>Desktop means the main screen where you go through before opening any windows</source>
        <translation>桌面是指打开任何窗口之前所见的主屏幕</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>前景</translation>
    </message>
    <message>
        <source>Foreground means the Current window you are working with i.e, The Velara&apos;s Studio Environment.</source>
        <translation>前景是指您正在使用的当前窗口，即 Velara Studio 环境。</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Background means any windows behind the current active window including your Desktop. Desktop is the background if there is no other visible windows behind Velara&apos;s Studio</source>
        <translation>背景是指当前活动窗口后面的任何窗口，包括桌面。如果 Velara Studio 后面没有其他可见窗口，背景就是桌面</translation>
    </message>
    <message>
        <source>What to capture</source>
        <translation>捕获对象</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n 秒</numerusform>
        </translation>
    </message>
    <message>
        <source>At once</source>
        <translation>立即</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>延时(&amp;D)</translation>
    </message>
    <message>
        <source>With the &amp;pointer</source>
        <translation>包含指针(&amp;P)</translation>
    </message>
</context>
<context>
    <name>velara::fCaptureRectangle</name>
    <message>
        <source>Capture Rectangle</source>
        <translation>捕获矩形</translation>
    </message>
    <message>
        <source>Drag a rectangle; Esc leaves</source>
        <translation>拖出一个矩形；按 Esc 退出</translation>
    </message>
    <message>
        <source>Drag a rectangle; with Shift it stays, with grips</source>
        <translation>拖出一个矩形；按住 Shift 则保留并带控制点</translation>
    </message>
    <message>
        <source>Enter: all, or the rectangle</source>
        <translation>Enter：全部，或该矩形</translation>
    </message>
    <message>
        <source>Esc: leave</source>
        <translation>Esc：退出</translation>
    </message>
    <message>
        <source>W: the window below the pointer</source>
        <translation>W：指针下的窗口</translation>
    </message>
</context>
<context>
    <name>velara::fCellGrid</name>
    <message>
        <source>Colors</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Cell %1: %2</source>
        <translation>单元格 %1：%2</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空</translation>
    </message>
</context>
<context>
    <name>velara::fColorButton</name>
    <message>
        <source>Red %1, green %2, blue %3</source>
        <translation>红 %1，绿 %2，蓝 %3</translation>
    </message>
</context>
<context>
    <name>velara::fColorDepth</name>
    <message>
        <source>2 Colors (1 Bit)</source>
        <translation>2 色（1 位）</translation>
    </message>
    <message>
        <source>16 Colors (4 Bit)</source>
        <translation>16 色（4 位）</translation>
    </message>
    <message>
        <source>256 Colors (8 Bit)</source>
        <translation>256 色（8 位）</translation>
    </message>
    <message>
        <source>(15 Bit)</source>
        <translation>（15 位）</translation>
    </message>
    <message>
        <source>(16 Bit)</source>
        <translation>（16 位）</translation>
    </message>
    <message>
        <source>32,000 Colors (24 Bit)</source>
        <translation>32,000 色（24 位）</translation>
    </message>
    <message>
        <source>64,000 Colors (24 Bit)</source>
        <translation>64,000 色（24 位）</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>原图</translation>
    </message>
    <message>
        <source>Optimized</source>
        <translation>优化后</translation>
    </message>
    <message>
        <source>Image Color Depth</source>
        <translation>图像颜色深度</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Select an option</source>
        <translation>选择一个选项</translation>
    </message>
    <message>
        <source>Color depth</source>
        <translation>颜色深度</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Full size</source>
        <translation>完整大小</translation>
    </message>
    <message>
        <source>1/%1 of the size</source>
        <translation>大小的 1/%1</translation>
    </message>
    <message>
        <source>Optimized to</source>
        <translation>优化为</translation>
    </message>
    <message>
        <source>Send the Optimized Image to </source>
        <translation>将优化图像发送到 </translation>
    </message>
    <message>
        <source>Optimized Saver </source>
        <translation>优化保存 </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Zoom: %1</source>
        <translation>缩放：%1</translation>
    </message>
</context>
<context>
    <name>velara::fColourCell</name>
    <message>
        <source>Red %1, green %2, blue %3</source>
        <translation>红 %1，绿 %2，蓝 %3</translation>
    </message>
</context>
<context>
    <name>velara::fDisplay</name>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>%1, %2: red %3, green %4, blue %5</source>
        <translation>%1, %2：红 %3，绿 %4，蓝 %5</translation>
    </message>
</context>
<context>
    <name>velara::fEffectsPage</name>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Apply the effect</source>
        <translation>应用效果</translation>
    </message>
    <message>
        <source>Apply the file as a texture</source>
        <translation>将该文件作为纹理应用</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>效果</translation>
    </message>
    <message>
        <source>%1: a double click applies it</source>
        <translation>%1：双击即可应用</translation>
    </message>
    <message>
        <source>Effects, up and down</source>
        <translation>效果，上下</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>A&amp;mount</source>
        <translation>数量(&amp;M)</translation>
    </message>
    <message>
        <source>Texture files</source>
        <translation>纹理文件</translation>
    </message>
    <message>
        <source>Fol&amp;der...</source>
        <translation>文件夹(&amp;D)...</translation>
    </message>
    <message>
        <source>Choose the folder of the texture files</source>
        <translation>选择纹理文件所在的文件夹</translation>
    </message>
    <message>
        <source>No texture files in %1</source>
        <translation>%1 中没有纹理文件</translation>
    </message>
    <message>
        <source>Texture files of %1</source>
        <translation>%1 的纹理文件</translation>
    </message>
    <message>
        <source>There is no picture open.</source>
        <translation>没有打开的图片。</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>纹理</translation>
    </message>
    <message>
        <source>%1 can&apos;t be used as a texture: %2</source>
        <translation>%1 无法用作纹理：%2</translation>
    </message>
</context>
<context>
    <name>velara::fFilter</name>
    <message>
        <source>Working. Esc ends it.</source>
        <translation>正在处理。按 Esc 中止。</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>From</source>
        <translation>从</translation>
    </message>
    <message>
        <source>To</source>
        <translation>到</translation>
    </message>
    <message>
        <source>%1 color</source>
        <translation>%1颜色</translation>
    </message>
    <message>
        <source>Banks</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>%1 comes from</source>
        <translation>%1来自</translation>
    </message>
    <message>
        <source>%1 comes from %2</source>
        <translation>%1来自%2</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>反相</translation>
    </message>
    <message>
        <source>Invert %1</source>
        <translation>反相%1</translation>
    </message>
    <message>
        <source>Kill</source>
        <translation>去除</translation>
    </message>
    <message>
        <source>Kill %1</source>
        <translation>去除%1</translation>
    </message>
    <message>
        <source>Glass</source>
        <translation>玻璃</translation>
    </message>
    <message>
        <source>%1 glass</source>
        <translation>%1玻璃</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>力度</translation>
    </message>
    <message>
        <source>Curtain Effects</source>
        <translation>幕帘效果</translation>
    </message>
    <message>
        <source>%1 curtain</source>
        <translation>%1幕帘</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Real Time</source>
        <translation>实时</translation>
    </message>
    <message>
        <source>Runs the filter on the picture and closes</source>
        <translation>对图片应用滤镜并关闭</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Before: click to place the center</source>
        <translation>之前：单击以放置中心</translation>
    </message>
    <message>
        <source>Before: click to pick a color</source>
        <translation>之前：单击以拾取颜色</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>之前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>之后</translation>
    </message>
    <message>
        <source>After, pixel for pixel</source>
        <translation>之后，逐像素</translation>
    </message>
    <message>
        <source>Drag it, or click in a picture beside it, to see another part</source>
        <translation>拖动它，或在旁边的图片中单击，以查看其他部分</translation>
    </message>
</context>
<context>
    <name>velara::fFolderRun</name>
    <message>
        <source>Run on a Folder</source>
        <translation>对文件夹运行</translation>
    </message>
    <message>
        <source>Add a picture</source>
        <translation>添加图片</translation>
    </message>
    <message>
        <source>Add a folder of pictures</source>
        <translation>添加图片文件夹</translation>
    </message>
    <message>
        <source>-done</source>
        <translation>-完成</translation>
    </message>
    <message>
        <source>Where the new files go</source>
        <translation>新文件的存放位置</translation>
    </message>
    <message>
        <source>Go &amp;on</source>
        <translation>继续(&amp;O)</translation>
    </message>
    <message>
        <source>Pau&amp;se</source>
        <translation>暂停(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Every original is replaced by its result. They can&apos;t be brought back.</source>
        <translation>每个原文件都将被其结果替换，且无法找回。</translation>
    </message>
    <message>
        <source>&amp;Replace the originals</source>
        <translation>替换原文件(&amp;R)</translation>
    </message>
    <message>
        <source>%1 of about %2</source>
        <translation>%1 / 约 %2</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>已完成 %1</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>已跳过 %1</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>失败 %1</translation>
    </message>
    <message>
        <source>%1 a minute</source>
        <translation>每分钟 %1 张</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>%1 can&apos;t be started: %2</source>
        <translation>无法启动 %1：%2</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>日志：%1</translation>
    </message>
    <message>
        <source>It is still at work.</source>
        <translation>它仍在工作。</translation>
    </message>
    <message>
        <source>&amp;Stop it and close</source>
        <translation>停止并关闭(&amp;S)</translation>
    </message>
    <message>
        <source>Leave it, and skip the picture</source>
        <translation>保留它，跳过该图片</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>替换它</translation>
    </message>
    <message>
        <source>Add a number to the new name</source>
        <translation>在新名称后加编号</translation>
    </message>
    <message>
        <source>Replace it if it is older than the picture</source>
        <translation>若早于图片则替换</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>配方</translation>
    </message>
    <message>
        <source>R&amp;ecipe</source>
        <translation>配方(&amp;E)</translation>
    </message>
    <message>
        <source>Pictures and folders</source>
        <translation>图片和文件夹</translation>
    </message>
    <message>
        <source>with the folders &amp;below</source>
        <translation>包含子文件夹(&amp;B)</translation>
    </message>
    <message>
        <source>With the folders below</source>
        <translation>包含子文件夹</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>从列表中移除</translation>
    </message>
    <message>
        <source>&amp;Picture ...</source>
        <translation>图片(&amp;P) ...</translation>
    </message>
    <message>
        <source>&amp;Folder ...</source>
        <translation>文件夹(&amp;F) ...</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Pict&amp;ures</source>
        <translation>图片(&amp;U)</translation>
    </message>
    <message>
        <source>Target folder</source>
        <translation>目标文件夹</translation>
    </message>
    <message>
        <source>F&amp;older ...</source>
        <translation>文件夹(&amp;O) ...</translation>
    </message>
    <message>
        <source>Choose the target folder</source>
        <translation>选择目标文件夹</translation>
    </message>
    <message>
        <source>o&amp;ver the originals, which are lost</source>
        <translation>覆盖原文件，原文件将丢失(&amp;V)</translation>
    </message>
    <message>
        <source>Over the originals, which are lost</source>
        <translation>覆盖原文件，原文件将丢失</translation>
    </message>
    <message>
        <source>Names of the new files</source>
        <translation>新文件的名称</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Each as it is</source>
        <translation>各自保持原样</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Where a file has the name already</source>
        <translation>当文件名已存在时</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>质量(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Target</source>
        <translation>目标(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>名称(&amp;N)</translation>
    </message>
    <message>
        <source>Form&amp;at</source>
        <translation>格式(&amp;A)</translation>
    </message>
    <message>
        <source>E&amp;xisting file</source>
        <translation>已有文件(&amp;X)</translation>
    </message>
    <message>
        <source>Pictures done</source>
        <translation>已完成的图片</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Pictures that failed; Enter or a double click opens one</source>
        <translation>失败的图片；按 Enter 或双击可打开</translation>
    </message>
    <message>
        <source>A double click opens the picture</source>
        <translation>双击打开图片</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>运行(&amp;R)</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>运行</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Cancel or close</source>
        <translation>取消或关闭</translation>
    </message>
    <message>
        <source>Pictures that fa&amp;iled</source>
        <translation>失败的图片(&amp;I)</translation>
    </message>
    <message>
        <source>{name}  the picture&apos;s own name
{ext}  the ending of its format
{n:04}  its number, with four digits
{dir}  its folder below the one that was chosen
{width}, {height}  its size in pixels
Such as {name}-web.{ext}</source>
        <translation>{name}  图片自己的名称
{ext}  其格式的扩展名
{n:04}  其编号，四位数
{dir}  它在所选文件夹之下的文件夹
{width}、{height}  其像素尺寸
例如 {name}-web.{ext}</translation>
    </message>
</context>
<context>
    <name>velara::fGeometry</name>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation>最小尺寸：2 x 2</translation>
    </message>
    <message>
        <source>Maximum size: 256 megapixels</source>
        <translation>最大尺寸：256 百万像素</translation>
    </message>
</context>
<context>
    <name>velara::fHelp</name>
    <message>
        <source>What to do, and the keys for it</source>
        <translation>要做什么，以及相应的按键</translation>
    </message>
    <message>
        <source>Move the picture in its window</source>
        <translation>在窗口中移动图片</translation>
    </message>
    <message>
        <source>Middle button, or the hand (H)</source>
        <translation>中键，或抓手 (H)</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>上下滚动</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>滚轮</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>左右滚动</translation>
    </message>
    <message>
        <source>Shift + wheel</source>
        <translation>Shift + 滚轮</translation>
    </message>
    <message>
        <source>Zoom about the pointer</source>
        <translation>以指针为中心缩放</translation>
    </message>
    <message>
        <source>Ctrl + wheel</source>
        <translation>Ctrl + 滚轮</translation>
    </message>
    <message>
        <source>Drop what is under way</source>
        <translation>放弃当前操作</translation>
    </message>
    <message>
        <source>Esc, or the right button</source>
        <translation>Esc，或右键</translation>
    </message>
    <message>
        <source>Draw without a mouse: move a crosshair by a pixel, or ten</source>
        <translation>不用鼠标绘制：将十字准线移动一个或十个像素</translation>
    </message>
    <message>
        <source>Arrow keys, with Shift</source>
        <translation>方向键，配合 Shift</translation>
    </message>
    <message>
        <source>Press at the crosshair, and release</source>
        <translation>在十字准线处按下，然后松开</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Fix a text, a paste or moved pixels, and go on</source>
        <translation>固定文字、粘贴或移动的像素，然后继续</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>Corner of a polygon</source>
        <translation>多边形的顶点</translation>
    </message>
    <message>
        <source>Click, or Space while dragging</source>
        <translation>单击，或拖动时按空格</translation>
    </message>
    <message>
        <source>Close a polygon</source>
        <translation>闭合多边形</translation>
    </message>
    <message>
        <source>Enter, or a double click</source>
        <translation>Enter，或双击</translation>
    </message>
    <message>
        <source>To the tools and their settings, and back</source>
        <translation>转到工具及其设置，再返回</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>要做什么</translation>
    </message>
    <message>
        <source>Mouse and keys</source>
        <translation>鼠标与按键</translation>
    </message>
    <message>
        <source>On a picture</source>
        <translation>在图片上</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Keys and Mouse</source>
        <translation>按键与鼠标</translation>
    </message>
</context>
<context>
    <name>velara::fHexBox</name>
    <message>
        <source>Color code</source>
        <translation>颜色代码</translation>
    </message>
    <message>
        <source>#rrggbb, #rgb or a name such as teal; Enter takes it</source>
        <translation>#rrggbb、#rgb 或 teal 之类的名称；按 Enter 采用</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color. Enter it as #rrggbb, as #rgb or by its name.</source>
        <translation>“%1”不是颜色。请以 #rrggbb、#rgb 或颜色名称输入。</translation>
    </message>
</context>
<context>
    <name>velara::fHistory</name>
    <message>
        <source>Steps, oldest first</source>
        <translation>步骤，最早的在前</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>启动时</translation>
    </message>
    <message>
        <source>A change</source>
        <translation>一处更改</translation>
    </message>
    <message>
        <source>painted by hand</source>
        <translation>手工绘制</translation>
    </message>
    <message>
        <source>
in a selection</source>
        <translation>
在选区内</translation>
    </message>
    <message>
        <source>
This step is not kept any more.</source>
        <translation>
此步骤已不再保留。</translation>
    </message>
    <message>
        <source>All steps</source>
        <translation>所有步骤</translation>
    </message>
    <message>
        <source>From this step on</source>
        <translation>从此步骤起</translation>
    </message>
    <message>
        <source>&amp;Copy as command</source>
        <translation>复制为命令(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save recipe ...</source>
        <translation>保存配方(&amp;S) ...</translation>
    </message>
    <message>
        <source>&amp;Run from here on the other open pictures</source>
        <translation>从此处起应用到其他打开的图片(&amp;R)</translation>
    </message>
</context>
<context>
    <name>velara::fIcon</name>
    <message>
        <source>Extract Icon</source>
        <translation>提取图标</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
</context>
<context>
    <name>velara::fIconBar</name>
    <message>
        <source>What is in the frame, magnified</source>
        <translation>框内内容，放大显示</translation>
    </message>
    <message>
        <source>Icon Maker</source>
        <translation>图标制作</translation>
    </message>
    <message>
        <source>Drag the frame over the picture.
Arrow keys move it by a pixel.</source>
        <translation>在图片上拖动图标框。
方向键每次移动一个像素。</translation>
    </message>
    <message>
        <source>Icons taken</source>
        <translation>已截取的图标</translation>
    </message>
    <message>
        <source>Icons taken:</source>
        <translation>已截取的图标：</translation>
    </message>
    <message>
        <source>Size of the icon: + and -</source>
        <translation>图标大小：+ 和 -</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>截取</translation>
    </message>
    <message>
        <source>Take the icon: Enter</source>
        <translation>截取图标：Enter</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Back to the icon extractor: Esc</source>
        <translation>返回图标提取器：Esc</translation>
    </message>
</context>
<context>
    <name>velara::fIconBrowse</name>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Icon Extractor: Select Folder</source>
        <translation>图标提取器：选择文件夹</translation>
    </message>
    <message>
        <source>The chosen folder</source>
        <translation>所选文件夹</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
</context>
<context>
    <name>velara::fIconMaker</name>
    <message>
        <source>Icon Maker</source>
        <translation>图标制作</translation>
    </message>
    <message>
        <source>Drag the frame of the icon; Enter takes, Esc closes</source>
        <translation>拖动图标框；Enter 截取，Esc 关闭</translation>
    </message>
</context>
<context>
    <name>velara::fIconPicture</name>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>16 to 256 in one &amp;file</source>
        <translation>16 到 256 存入一个文件(&amp;F)</translation>
    </message>
    <message>
        <source>Select Required Options</source>
        <translation>选择所需选项</translation>
    </message>
    <message>
        <source>Use &amp;Mask Color</source>
        <translation>使用蒙版颜色(&amp;M)</translation>
    </message>
    <message>
        <source>Icon Preview</source>
        <translation>图标预览</translation>
    </message>
    <message>
        <source>&amp;Save As</source>
        <translation>另存为(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>宽度(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>高度(&amp;H)</translation>
    </message>
    <message>
        <source>A click takes the mask color from here</source>
        <translation>单击此处取蒙版颜色</translation>
    </message>
    <message>
        <source>There is no picture open.</source>
        <translation>没有打开的图片。</translation>
    </message>
    <message>
        <source>Width and height are whole numbers from 1 to %1.</source>
        <translation>宽度和高度是 1 到 %1 的整数。</translation>
    </message>
    <message>
        <source>%1 times as large</source>
        <translation>放大到 %1 倍</translation>
    </message>
    <message>
        <source>Save Icon as</source>
        <translation>图标另存为</translation>
    </message>
    <message>
        <source>Icon File</source>
        <translation>图标文件</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>已保存：%1</translation>
    </message>
</context>
<context>
    <name>velara::fIconSeries</name>
    <message>
        <source>Custom Icon Extractor</source>
        <translation>自定义图标提取器</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Use Mas&amp;k Color</source>
        <translation>使用蒙版颜色(&amp;K)</translation>
    </message>
    <message>
        <source>What to capture</source>
        <translation>捕获对象</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>前景</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>开始(&amp;G)</translation>
    </message>
    <message>
        <source>Captures the screen and cuts icons out of it</source>
        <translation>捕获屏幕并从中截取图标</translation>
    </message>
    <message>
        <source>Icons cut out</source>
        <translation>截取的图标</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>&amp;Extract Icons of the Selected Images to</source>
        <translation>将所选图像的图标提取到(&amp;E)</translation>
    </message>
    <message>
        <source>Folder of the icons</source>
        <translation>图标文件夹</translation>
    </message>
    <message>
        <source>....</source>
        <translation>....</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>Select the folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>No Images to extract!</source>
        <translation>没有可提取的图像！</translation>
    </message>
    <message>
        <source>Folder does not Exists! Please Enter a valid folder path</source>
        <translation>文件夹不存在！请输入有效的文件夹路径</translation>
    </message>
    <message numerus="yes">
        <source>%n icon Files Saved!</source>
        <translation>
            <numerusform>已保存 %n 个图标文件！</numerusform>
        </translation>
    </message>
    <message>
        <source>Not written: %1</source>
        <translation>未写入：%1</translation>
    </message>
    <message numerus="yes">
        <source> and %n more</source>
        <translation>
            <numerusform> 以及另外 %n 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velara::fImage</name>
    <message>
        <source>Picture window</source>
        <translation>图片窗口</translation>
    </message>
    <message>
        <source>Horizontal scroll bar</source>
        <translation>水平滚动条</translation>
    </message>
    <message>
        <source>Vertical scroll bar</source>
        <translation>垂直滚动条</translation>
    </message>
    <message>
        <source>This image has changed.
Do you want to save it ?</source>
        <translation>此图像已更改。
是否保存？</translation>
    </message>
</context>
<context>
    <name>velara::fLayerCanvas</name>
    <message>
        <source>Picture with its texts</source>
        <translation>带文字的图片</translation>
    </message>
    <message>
        <source>Text %1</source>
        <translation>文字 %1</translation>
    </message>
</context>
<context>
    <name>velara::fLayerList</name>
    <message>
        <source>Texts</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Texts, up and down</source>
        <translation>文字，上下</translation>
    </message>
    <message>
        <source>Empty text</source>
        <translation>空文字</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>显示 %1</translation>
    </message>
</context>
<context>
    <name>velara::fLayers</name>
    <message>
        <source>Regular</source>
        <translation>常规体</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>下划线</translation>
    </message>
    <message>
        <source>Strike out</source>
        <translation>删除线</translation>
    </message>
    <message>
        <source>Save for Web</source>
        <translation>存储为 Web 格式</translation>
    </message>
    <message>
        <source>Color Depth</source>
        <translation>颜色深度</translation>
    </message>
    <message>
        <source>Picture with its texts</source>
        <translation>带文字的图片</translation>
    </message>
    <message>
        <source>Color of the text</source>
        <translation>文字颜色</translation>
    </message>
    <message>
        <source>Apply Text</source>
        <translation>应用文字</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>New text</source>
        <translation>新文字</translation>
    </message>
    <message>
        <source>Delete text</source>
        <translation>删除文字</translation>
    </message>
    <message>
        <source>Send Optimized Image To</source>
        <translation>将优化图像发送到</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Zoom to fit</source>
        <translation>缩放至适合</translation>
    </message>
    <message>
        <source>Type. A drag marks letters, at the frame it moves the text. Esc ends typing.</source>
        <translation>请输入。拖动可选中字符，在边框上拖动可移动文字。按 Esc 结束输入。</translation>
    </message>
    <message>
        <source>Drag the text or its grips. A click or Enter puts the caret into it.</source>
        <translation>拖动文字或其控制点。单击或按 Enter 将光标置入其中。</translation>
    </message>
    <message>
        <source>Click on the picture where a text shall stand, and type.</source>
        <translation>在图片上要放置文字的位置单击，然后输入。</translation>
    </message>
    <message>
        <source>
The texts are not in the image yet.
Do you want to merge them ?</source>
        <translation>
文字尚未合并到图像中。
是否现在合并？</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Bring this picture to the front first.</source>
        <translation>请先将此图片置于最前。</translation>
    </message>
</context>
<context>
    <name>velara::fMain</name>
    <message>
        <source>First color</source>
        <translation>第一颜色</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>第二颜色</translation>
    </message>
    <message>
        <source>There is no picture to work on: open one first, or make a new one.</source>
        <translation>没有可处理的图片：请先打开或新建一张。</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>
There is no picture in it.</source>
        <translation>
其中没有图片。</translation>
    </message>
    <message>
        <source>
&quot;.%1&quot; is no format that is written.</source>
        <translation>
无法写入“.%1”格式。</translation>
    </message>
    <message>
        <source>Unexpected error loading image</source>
        <translation>加载图像时发生意外错误</translation>
    </message>
    <message>
        <source>This file is not there any more:
</source>
        <translation>此文件已不存在：
</translation>
    </message>
    <message>
        <source>These files are not there any more:
</source>
        <translation>以下文件已不存在：
</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>正在读取 %1 ...</translation>
    </message>
    <message>
        <source> can&apos;t be read as a picture.</source>
        <translation> 无法作为图片读取。</translation>
    </message>
    <message>
        <source> was not read</source>
        <translation> 未读取</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>No picture has changed.</source>
        <translation>没有更改过的图片。</translation>
    </message>
    <message>
        <source>These are written to their own files:
</source>
        <translation>以下图片将写入各自的文件：
</translation>
    </message>
    <message>
        <source>These need a name, for which you are asked:
</source>
        <translation>以下图片需要名称，稍后将询问您：
</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>全部保存</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>&amp;Keep camera data</source>
        <translation>保留相机数据(&amp;K)</translation>
    </message>
    <message>
        <source>without the &amp;place</source>
        <translation>不含地点(&amp;P)</translation>
    </message>
    <message>
        <source>Saving %1 ... Esc ends it</source>
        <translation>正在保存 %1 ... 按 Esc 中止</translation>
    </message>
    <message>
        <source>%1 is not saved.</source>
        <translation>%1 尚未保存。</translation>
    </message>
    <message>
        <source>Unexpected error saving image</source>
        <translation>保存图像时发生意外错误</translation>
    </message>
    <message>
        <source>Of a kind that is not read: %1</source>
        <translation>无法读取的类型：%1</translation>
    </message>
    <message>
        <source>It is %1 picture; saved under this name it would become %2 picture.</source>
        <translation>它是 %1 图片；用此名称保存会变成 %2 图片。</translation>
    </message>
    <message>
        <source>There is no page behind this one.</source>
        <translation>此页之后没有页面。</translation>
    </message>
    <message>
        <source>There is no page before this one.</source>
        <translation>此页之前没有页面。</translation>
    </message>
    <message>
        <source>
Do you want to save it under another name ?</source>
        <translation>
是否用其他名称保存？</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>另存为(&amp;A) ...</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>覆盖(&amp;O)</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>未选择任何内容</translation>
    </message>
    <message>
        <source>Minimum size: 2 x 2</source>
        <translation>最小尺寸：2 x 2</translation>
    </message>
    <message>
        <source>Apply Text</source>
        <translation>应用文字</translation>
    </message>
    <message>
        <source>the texts of another picture wait for OK or Exit</source>
        <translation>另一图片的文字正在等待“确定”或“退出”</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>A step could not be kept: this is the last one that stands.</source>
        <translation>有一个步骤无法保留：这是仅存的最后一步。</translation>
    </message>
    <message>
        <source>A step that could not be kept was passed over.</source>
        <translation>跳过了一个无法保留的步骤。</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>After a crash this picture could not be recovered: %1.</source>
        <translation>崩溃后无法恢复此图片：%1。</translation>
    </message>
    <message>
        <source>This step can&apos;t be undone: %1.</source>
        <translation>此步骤无法撤销：%1。</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation>画布大小</translation>
    </message>
    <message>
        <source>Error getting subkey value.</source>
        <translation>获取子键值时出错。</translation>
    </message>
    <message>
        <source>Error Setting subkey value.</source>
        <translation>设置子键值时出错。</translation>
    </message>
    <message numerus="yes">
        <source>It has %n pages; this one alone would be left of it.</source>
        <translation>
            <numerusform>该文件有 %n 页；保存后将只剩下这一页。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
It has %n pages; this one alone would be left of it.</source>
        <translation>
            <numerusform>
该文件有 %n 页；保存后将只剩下这一页。</numerusform>
        </translation>
    </message>
    <message>
        <source>The program that reads pictures (velara-decode) was not found. Is the package being removed? What is open can be changed and saved.</source>
        <translation>找不到读取图片的程序 (velara-decode)。是否正在卸载软件包？已打开的内容仍可修改和保存。</translation>
    </message>
</context>
<context>
    <name>velara::fManual</name>
    <message>
        <source>Page of the manual</source>
        <translation>手册页面</translation>
    </message>
    <message>
        <source>Pages of the manual</source>
        <translation>手册页面列表</translation>
    </message>
    <message>
        <source>Words to look for in the manual</source>
        <translation>要在手册中查找的词</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手册</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Words to look for</source>
        <translation>要查找的词</translation>
    </message>
</context>
<context>
    <name>velara::fNew</name>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Standard sizes</source>
        <translation>标准尺寸</translation>
    </message>
    <message>
        <source>&lt;Custom&gt;</source>
        <translation>&lt;自定义&gt;</translation>
    </message>
    <message>
        <source>Custom:</source>
        <translation>自定义：</translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation>保持比例(&amp;K)</translation>
    </message>
</context>
<context>
    <name>velara::fOrientation</name>
    <message>
        <source>Unchanged</source>
        <translation>不变</translation>
    </message>
    <message>
        <source>90º left</source>
        <translation>左转 90º</translation>
    </message>
    <message>
        <source>90º right</source>
        <translation>右转 90º</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Canvas orientation</source>
        <translation>画布方向</translation>
    </message>
    <message>
        <source>Flip &amp;vertical</source>
        <translation>垂直翻转(&amp;V)</translation>
    </message>
    <message>
        <source>Flip vertical</source>
        <translation>垂直翻转</translation>
    </message>
    <message>
        <source>Flip &amp;horizontal</source>
        <translation>水平翻转(&amp;H)</translation>
    </message>
    <message>
        <source>Flip horizontal</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Flip image</source>
        <translation>翻转图像</translation>
    </message>
</context>
<context>
    <name>velara::fOverlay</name>
    <message>
        <source>Image Merging</source>
        <translation>图像合并</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Select image to overlay:</source>
        <translation>选择要叠加的图像：</translation>
    </message>
    <message>
        <source>Image to overlay</source>
        <translation>要叠加的图像</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>&amp;Tiled</source>
        <translation>平铺(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Mask color</source>
        <translation>蒙版颜色(&amp;M)</translation>
    </message>
    <message>
        <source>Mask color</source>
        <translation>蒙版颜色</translation>
    </message>
    <message>
        <source>Create &amp;new image</source>
        <translation>创建新图像(&amp;N)</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Left offset</source>
        <translation>左偏移</translation>
    </message>
    <message>
        <source>Top offset</source>
        <translation>上偏移</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>超过 %1</translation>
    </message>
    <message>
        <source>No picture is open.</source>
        <translation>没有打开的图片。</translation>
    </message>
    <message>
        <source>Not merged: %1</source>
        <translation>未合并：%1</translation>
    </message>
</context>
<context>
    <name>velara::fOwnSize</name>
    <message>
        <source>&amp;Own size</source>
        <translation>自定大小(&amp;O)</translation>
    </message>
    <message>
        <source>Printed width</source>
        <translation>打印宽度</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Printed height</source>
        <translation>打印高度</translation>
    </message>
    <message>
        <source>Printed size in percent</source>
        <translation>打印大小（百分比）</translation>
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
        <translation>选择颜色</translation>
    </message>
    <message>
        <source>Saturation and lightness</source>
        <translation>饱和度与亮度</translation>
    </message>
    <message>
        <source>Click to pick and to store in the cell; double click for the large picker</source>
        <translation>单击拾取并存入单元格；双击打开大拾色器</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>Current pick</source>
        <translation>当前拾取</translation>
    </message>
    <message>
        <source>First color</source>
        <translation>第一颜色</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>第二颜色</translation>
    </message>
    <message>
        <source>Swap the colors</source>
        <translation>交换颜色</translation>
    </message>
    <message>
        <source>&amp;Link</source>
        <translation>链接(&amp;L)</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Link with current color</source>
        <translation>与当前颜色链接</translation>
    </message>
    <message>
        <source>Cell %1</source>
        <translation>单元格 %1</translation>
    </message>
    <message>
        <source>Preset colors</source>
        <translation>预设颜色</translation>
    </message>
    <message>
        <source>%1 degrees</source>
        <translation>%1 度</translation>
    </message>
</context>
<context>
    <name>velara::fPaste</name>
    <message>
        <source>Picture of the clip</source>
        <translation>剪贴的图片</translation>
    </message>
    <message>
        <source>Clip History</source>
        <translation>剪贴历史</translation>
    </message>
    <message>
        <source>Clips, oldest first</source>
        <translation>剪贴内容，最早的在前</translation>
    </message>
    <message>
        <source>Enter pastes the clip</source>
        <translation>按 Enter 粘贴该剪贴</translation>
    </message>
    <message>
        <source>Scroll the clips</source>
        <translation>滚动剪贴内容</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>剪贴 %1</translation>
    </message>
    <message>
        <source>Opaque &amp;Intensity</source>
        <translation>不透明强度(&amp;I)</translation>
    </message>
    <message>
        <source>Opaque Intensity</source>
        <translation>不透明强度</translation>
    </message>
    <message>
        <source>Clip History: 
%1</source>
        <translation>剪贴历史： 
%1</translation>
    </message>
    <message>
        <source>Minimum cut size: 2 x 2</source>
        <translation>最小剪切尺寸：2 x 2</translation>
    </message>
    <message>
        <source>Minimum copy size: 2 x 2</source>
        <translation>最小复制尺寸：2 x 2</translation>
    </message>
</context>
<context>
    <name>velara::fPicker</name>
    <message>
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>洋红</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Color Box</source>
        <translation>颜色面板</translation>
    </message>
    <message>
        <source>Enter an Integer Value Between 0 and %1</source>
        <translation>请输入 0 到 %1 之间的整数</translation>
    </message>
    <message>
        <source>&amp;Picker</source>
        <translation>拾色器(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Preset</source>
        <translation>预设(&amp;P)</translation>
    </message>
    <message>
        <source>Color field</source>
        <translation>颜色区域</translation>
    </message>
    <message>
        <source>Color strip</source>
        <translation>色条</translation>
    </message>
    <message>
        <source>%1 on the strip</source>
        <translation>色条上的%1</translation>
    </message>
    <message>
        <source>Color model</source>
        <translation>颜色模型</translation>
    </message>
    <message>
        <source>He&amp;x</source>
        <translation>十六进制(&amp;X)</translation>
    </message>
    <message>
        <source>Preset colors</source>
        <translation>预设颜色</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>自定义...</translation>
    </message>
    <message>
        <source>Safe Palette (216)</source>
        <translation>安全调色板 (216)</translation>
    </message>
    <message>
        <source>Put the color into the selected cell</source>
        <translation>将颜色放入所选单元格</translation>
    </message>
    <message>
        <source>Color to put into a cell</source>
        <translation>要放入单元格的颜色</translation>
    </message>
    <message>
        <source>Select a cell, then &lt;&lt; keeps
the color in your list.</source>
        <translation>选择一个单元格，然后用 &lt;&lt;
将颜色保存到您的列表。</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>所选颜色</translation>
    </message>
    <message>
        <source>Color before</source>
        <translation>之前的颜色</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>之前</translation>
    </message>
    <message>
        <source>Color under the pointer</source>
        <translation>指针下的颜色</translation>
    </message>
    <message>
        <source>Recent colors</source>
        <translation>最近的颜色</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近</translation>
    </message>
    <message>
        <source>Recent color %1</source>
        <translation>最近的颜色 %1</translation>
    </message>
    <message>
        <source>O&amp;K</source>
        <translation>确定(&amp;K)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>velara::fPicturePage</name>
    <message>
        <source>%1, left and right</source>
        <translation>%1，左右</translation>
    </message>
    <message>
        <source>%1, up and down</source>
        <translation>%1，上下</translation>
    </message>
</context>
<context>
    <name>velara::fPreferences</name>
    <message>
        <source>&amp;Open iP maximized </source>
        <translation>最大化打开 iP(&amp;O) </translation>
    </message>
    <message>
        <source>Open i&amp;mages maximized </source>
        <translation>最大化打开图像(&amp;M) </translation>
    </message>
    <message>
        <source>&amp;Preserve last folder</source>
        <translation>保留上次的文件夹(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Ask to save on Close/Exit</source>
        <translation>关闭/退出时询问是否保存(&amp;A)</translation>
    </message>
    <message>
        <source>%1: Options</source>
        <translation>%1：选项</translation>
    </message>
    <message>
        <source>Images default &amp;folder</source>
        <translation>默认图像文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Images default folder</source>
        <translation>默认图像文件夹</translation>
    </message>
    <message>
        <source>&amp;Browse ...</source>
        <translation>浏览(&amp;B) ...</translation>
    </message>
    <message>
        <source>Select Images default folder</source>
        <translation>选择默认图像文件夹</translation>
    </message>
    <message>
        <source>&amp;Convert pictures to sRGB</source>
        <translation>将图片转换为 sRGB(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Show pictures by the screen&apos;s color profile</source>
        <translation>按屏幕颜色配置文件显示图片(&amp;S)</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>from the next start on</source>
        <translation>下次启动时生效</translation>
    </message>
    <message>
        <source>Colors of the windows</source>
        <translation>窗口颜色</translation>
    </message>
    <message>
        <source>Colors of the &amp;windows:</source>
        <translation>窗口颜色(&amp;W)：</translation>
    </message>
</context>
<context>
    <name>velara::fPresetWell</name>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Window text</source>
        <translation>窗口文字</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>按钮文字</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>选区</translation>
    </message>
    <message>
        <source>Selected text</source>
        <translation>选中的文字</translation>
    </message>
    <message>
        <source>Tool tip</source>
        <translation>工具提示</translation>
    </message>
    <message>
        <source>Tool tip text</source>
        <translation>工具提示文字</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Visited link</source>
        <translation>已访问的链接</translation>
    </message>
    <message>
        <source>Light edge</source>
        <translation>浅色边缘</translation>
    </message>
    <message>
        <source>Pale edge</source>
        <translation>淡色边缘</translation>
    </message>
    <message>
        <source>Middle edge</source>
        <translation>中间色边缘</translation>
    </message>
    <message>
        <source>Dark edge</source>
        <translation>深色边缘</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>阴影</translation>
    </message>
    <message>
        <source>Other rows</source>
        <translation>其他行</translation>
    </message>
    <message>
        <source>Choose one of the set</source>
        <translation>从一组中选择</translation>
    </message>
</context>
<context>
    <name>velara::fPrint</name>
    <message>
        <source>The page</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>草稿</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>&amp;Fit to page</source>
        <translation>适合页面(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Center image</source>
        <translation>图像居中(&amp;C)</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>调整</translation>
    </message>
    <message>
        <source>Printing ...</source>
        <translation>正在打印 ...</translation>
    </message>
    <message>
        <source>Asking the printer ...</source>
        <translation>正在查询打印机 ...</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>最多 %1</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 毫米</translation>
    </message>
    <message>
        <source>File: </source>
        <translation>文件： </translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>打印到文件</translation>
    </message>
    <message>
        <source>Unable to print</source>
        <translation>无法打印</translation>
    </message>
    <message>
        <source>It is waiting</source>
        <translation>正在等待</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>%1 份</translation>
    </message>
</context>
<context>
    <name>velara::fPrinterBox</name>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>PDF file ...</source>
        <translation>PDF 文件 ...</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>选择打印机</translation>
    </message>
    <message>
        <source>Looking for printers ...</source>
        <translation>正在查找打印机 ...</translation>
    </message>
    <message>
        <source>No printer was found</source>
        <translation>未找到打印机</translation>
    </message>
</context>
<context>
    <name>velara::fPrinterSetup</name>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>&amp;Shades of gray</source>
        <translation>灰度(&amp;S)</translation>
    </message>
    <message>
        <source>Printer Setup</source>
        <translation>打印机设置</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Asking the printer ...</source>
        <translation>正在查询打印机 ...</translation>
    </message>
</context>
<context>
    <name>velara::fProperties</name>
    <message>
        <source>%1 pixels (%2 megapixels)</source>
        <translation>%1 像素（%2 百万像素）</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>字节</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
</context>
<context>
    <name>velara::fRecovery</name>
    <message>
        <source>Recover Pictures</source>
        <translation>恢复图片</translation>
    </message>
    <message>
        <source>The program ended before the changes of these pictures were saved.</source>
        <translation>程序在保存这些图片的更改之前就结束了。</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>&amp;Recover All</source>
        <translation>全部恢复(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Discard All ...</source>
        <translation>全部丢弃(&amp;D) ...</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>以后(&amp;L)</translation>
    </message>
    <message>
        <source>They stay on the start page, and in the File menu</source>
        <translation>它们仍保留在起始页和“文件”菜单中</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>缩略图</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Discard ...</source>
        <translation>丢弃 ...</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>以后</translation>
    </message>
</context>
<context>
    <name>velara::fResolution</name>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Anti-Alias</source>
        <translation>抗锯齿</translation>
    </message>
    <message>
        <source>File: </source>
        <translation>文件： </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>velara::fRgbBox</name>
    <message>
        <source>Drag up or down to change it; with Ctrl by tens</source>
        <translation>上下拖动可更改；按住 Ctrl 每次变化十</translation>
    </message>
</context>
<context>
    <name>velara::fRotate</name>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>度</translation>
    </message>
    <message>
        <source>&amp;Antialiasing</source>
        <translation>抗锯齿(&amp;A)</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>抗锯齿</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>45 degrees more</source>
        <translation>增加 45 度</translation>
    </message>
    <message>
        <source>45 degrees less</source>
        <translation>减少 45 度</translation>
    </message>
    <message>
        <source>Canvas will be resized</source>
        <translation>画布大小将改变</translation>
    </message>
</context>
<context>
    <name>velara::fScanSettings</name>
    <message>
        <source>Pre&amp;view</source>
        <translation>预览(&amp;V)</translation>
    </message>
    <message>
        <source>Whole &amp;bed</source>
        <translation>整个平台(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>从(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>模式(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Resolution (dpi)</source>
        <translation>分辨率 (dpi)(&amp;R)</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>左(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>上(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>宽度(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>高度(&amp;H)</translation>
    </message>
</context>
<context>
    <name>velara::fSearch</name>
    <message>
        <source>Find a command</source>
        <translation>查找命令</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Find a Command</source>
        <translation>查找命令</translation>
    </message>
    <message>
        <source>A few letters of what you want to do</source>
        <translation>输入您想做的事的几个字</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Nothing has this name.</source>
        <translation>没有叫这个名称的命令。</translation>
    </message>
    <message>
        <source> · used lately</source>
        <translation> · 最近使用</translation>
    </message>
</context>
<context>
    <name>velara::fSize</name>
    <message>
        <source>Image size</source>
        <translation>图像大小</translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation>保持比例(&amp;K)</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>百分比</translation>
    </message>
    <message>
        <source>&amp;Anti-Alias</source>
        <translation>抗锯齿(&amp;A)</translation>
    </message>
    <message>
        <source>Anti-Alias</source>
        <translation>抗锯齿</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>快速</translation>
    </message>
    <message>
        <source>Choose a factor</source>
        <translation>选择倍数</translation>
    </message>
    <message>
        <source>&amp;Percent</source>
        <translation>百分比(&amp;P)</translation>
    </message>
</context>
<context>
    <name>velara::fSizeFields</name>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>保持比例</translation>
    </message>
</context>
<context>
    <name>velara::fSource</name>
    <message>
        <source>Select Source</source>
        <translation>选择来源</translation>
    </message>
    <message>
        <source>Scanners</source>
        <translation>扫描仪</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>重新查找(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>选择(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Looking for scanners ...</source>
        <translation>正在查找扫描仪 ...</translation>
    </message>
    <message>
        <source>No scanner was found: </source>
        <translation>未找到扫描仪： </translation>
    </message>
    <message>
        <source>No scanner was found.</source>
        <translation>未找到扫描仪。</translation>
    </message>
    <message>
        <source>Scanners of this machine:</source>
        <translation>此计算机的扫描仪：</translation>
    </message>
    <message>
        <source>Please Verify that the system is connected to Scanner!</source>
        <translation>请确认系统已连接扫描仪！</translation>
    </message>
</context>
<context>
    <name>velara::fSplash</name>
    <message>
        <source>About Velara Studio</source>
        <translation>关于 Velara Studio</translation>
    </message>
</context>
<context>
    <name>velara::fStartPage</name>
    <message>
        <source>Recent pictures</source>
        <translation>最近的图片</translation>
    </message>
    <message>
        <source>How to start</source>
        <translation>如何开始</translation>
    </message>
    <message>
        <source>Open a picture to begin</source>
        <translation>打开一张图片即可开始</translation>
    </message>
    <message>
        <source>Pictures may also be dropped here.</source>
        <translation>也可以将图片拖放到这里。</translation>
    </message>
    <message>
        <source>Not saved when the program ended</source>
        <translation>程序结束时未保存</translation>
    </message>
    <message>
        <source>&amp;Recover ...</source>
        <translation>恢复(&amp;R) ...</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation>新建(&amp;N) ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>打开(&amp;O) ...</translation>
    </message>
    <message>
        <source>From the &amp;clipboard</source>
        <translation>来自剪贴板(&amp;C)</translation>
    </message>
</context>
<context>
    <name>velara::fStatus</name>
    <message>
        <source>Position of the pointer</source>
        <translation>指针位置</translation>
    </message>
    <message>
        <source>Extent of the drag</source>
        <translation>拖动范围</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>图片大小</translation>
    </message>
    <message>
        <source>Page of the file</source>
        <translation>文件的页</translation>
    </message>
    <message>
        <source>Name of the picture</source>
        <translation>图片名称</translation>
    </message>
    <message>
        <source>Keys of what is under way</source>
        <translation>当前操作的按键</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Progress of the filter</source>
        <translation>滤镜进度</translation>
    </message>
</context>
<context>
    <name>velara::fTextPage</name>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>对齐</translation>
    </message>
    <message>
        <source>Left Justify|Centre Justify|Right Justify|Full Justify</source>
        <translation>左对齐|居中对齐|右对齐|两端对齐</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>阴影</translation>
    </message>
    <message>
        <source>Top Left|Top|Top Right|Left|No Shadow|Right|Bottom Left|Bottom|Bottom Right</source>
        <translation>左上|上|右上|左|无阴影|右|左下|下|右下</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>下划线</translation>
    </message>
    <message>
        <source>The text is too long for this space: make the window larger.</source>
        <translation>文字太长，放不下：请放大窗口。</translation>
    </message>
    <message>
        <source>The text as it is stamped</source>
        <translation>盖印后的文字</translation>
    </message>
    <message>
        <source>Type the text here</source>
        <translation>在此输入文字</translation>
    </message>
    <message>
        <source>&amp;Place with the mouse</source>
        <translation>用鼠标放置(&amp;P)</translation>
    </message>
    <message>
        <source>Place with the mouse</source>
        <translation>用鼠标放置</translation>
    </message>
    <message>
        <source>Takes the text tool: press on the picture, drag, and let go where the text shall stand</source>
        <translation>选用文字工具：在图片上按下、拖动，在要放置文字处松开</translation>
    </message>
    <message>
        <source>Unable to find suitable font size for text</source>
        <translation>找不到适合该文字的字号</translation>
    </message>
</context>
<context>
    <name>velara::fTexturize</name>
    <message>
        <source>Texturize</source>
        <translation>纹理化</translation>
    </message>
    <message>
        <source>The folder &quot;Textures&quot; can&apos;t be written to.</source>
        <translation>无法写入文件夹“Textures”。</translation>
    </message>
    <message>
        <source>Textures</source>
        <translation>纹理</translation>
    </message>
    <message>
        <source>Chosen texture</source>
        <translation>所选纹理</translation>
    </message>
    <message>
        <source>Preview, pixel for pixel</source>
        <translation>预览，逐像素</translation>
    </message>
    <message>
        <source>The texture</source>
        <translation>纹理</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>强度</translation>
    </message>
    <message>
        <source>Depth </source>
        <translation>深度 </translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>深度</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>浮雕</translation>
    </message>
    <message>
        <source>Engrave</source>
        <translation>雕刻</translation>
    </message>
    <message>
        <source>Self-Texturized</source>
        <translation>自身纹理化</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>(can&apos;t be read)</source>
        <translation>（无法读取）</translation>
    </message>
    <message>
        <source>This file can&apos;t be read as a picture.</source>
        <translation>此文件无法作为图片读取。</translation>
    </message>
    <message>
        <source>A relief needs a picture of at least 2 x 2 pixels.</source>
        <translation>浮雕需要至少 2 x 2 像素的图片。</translation>
    </message>
    <message>
        <source>A texture needs at least 2 x 2 pixels.</source>
        <translation>纹理至少需要 2 x 2 像素。</translation>
    </message>
</context>
<context>
    <name>velara::fToolPane</name>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>First color</source>
        <translation>第一颜色</translation>
    </message>
    <message>
        <source>Second color</source>
        <translation>第二颜色</translation>
    </message>
    <message>
        <source>Swap the colors</source>
        <translation>交换颜色</translation>
    </message>
</context>
<context>
    <name>velara::fToolTextures</name>
    <message>
        <source>Text and effects</source>
        <translation>文字与效果</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>文字(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Effects</source>
        <translation>效果(&amp;E)</translation>
    </message>
    <message>
        <source>Textures: %1</source>
        <translation>纹理：%1</translation>
    </message>
</context>
<context>
    <name>velara::fWebTable</name>
    <message>
        <source>All formats</source>
        <translation>所有格式</translation>
    </message>
    <message>
        <source>Formats by size</source>
        <translation>按大小排列的格式</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>字节</translation>
    </message>
    <message>
        <source>Loss</source>
        <translation>损失</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Choose the format</source>
        <translation>选择格式</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Decibels: the more, the better.</source>
        <translation>分贝：越高越好。</translation>
    </message>
    <message>
        <source>no loss</source>
        <translation>无损失</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
</context>
</TS>
