<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>QKXColorManipulator</name>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>明度</translation>
    </message>
    <message>
        <source>Open the color dialog</source>
        <translation>打开颜色对话框</translation>
    </message>
</context>
<context>
    <name>QKXSearchBox</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>清除搜索</translation>
    </message>
</context>
<context>
    <name>QKXSlider</name>
    <message>
        <source>Slider</source>
        <translation>滑块</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>%1, slider</source>
        <translation>%1，滑块</translation>
    </message>
</context>
<context>
    <name>QKXTextureControls</name>
    <message>
        <source>Use texture</source>
        <translation>使用纹理</translation>
    </message>
</context>
<context>
    <name>QKXToolBar</name>
    <message>
        <source>More actions</source>
        <translation>更多操作</translation>
    </message>
</context>
<context>
    <name>hostlib::ImagePreview</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>No image selected</source>
        <translation>未选择图像</translation>
    </message>
</context>
<context>
    <name>hostlib::ImageSummary</name>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>The file cannot be read as an image.</source>
        <translation>无法将文件作为图像读取。</translation>
    </message>
    <message>
        <source>%1 × %2 pixels, %3</source>
        <translation>%1 × %2 像素，%3</translation>
    </message>
</context>
<context>
    <name>hostlib::ImageView</name>
    <message>
        <source>No image</source>
        <translation>无图像</translation>
    </message>
</context>
<context>
    <name>hostlib::TextureFileLine</name>
    <message>
        <source>Load image…</source>
        <translation>加载图像…</translation>
    </message>
    <message>
        <source>Reload image</source>
        <translation>重新加载图像</translation>
    </message>
    <message>
        <source>Save image</source>
        <translation>保存图像</translation>
    </message>
    <message>
        <source>Show information on the image</source>
        <translation>显示图像信息</translation>
    </message>
    <message>
        <source>Remove image</source>
        <translation>移除图像</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
</context>
<context>
    <name>hostlib::TexturePathEdit</name>
    <message>
        <source>No image</source>
        <translation>无图像</translation>
    </message>
    <message>
        <source>Image file</source>
        <translation>图像文件</translation>
    </message>
</context>
<context>
    <name>hostlib::TextureSettingsPanel</name>
    <message>
        <source>Projection</source>
        <translation>投影</translation>
    </message>
    <message>
        <source>UV</source>
        <translation>UV</translation>
    </message>
    <message>
        <source>Planar</source>
        <translation>平面</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>立方体</translation>
    </message>
    <message>
        <source>Cylindrical</source>
        <translation>圆柱</translation>
    </message>
    <message>
        <source>Spherical</source>
        <translation>球面</translation>
    </message>
    <message>
        <source>Repeat mode in U</source>
        <translation>U 方向重复模式</translation>
    </message>
    <message>
        <source>Repeat mode in V</source>
        <translation>V 方向重复模式</translation>
    </message>
    <message>
        <source>Beyond edges</source>
        <translation>边缘之外</translation>
    </message>
    <message>
        <source>Repeat UV</source>
        <translation>重复 UV</translation>
    </message>
    <message>
        <source>Repeat in U</source>
        <translation>U 方向重复</translation>
    </message>
    <message>
        <source>Repeat in V</source>
        <translation>V 方向重复</translation>
    </message>
    <message>
        <source>Offset UV</source>
        <translation>偏移 UV</translation>
    </message>
    <message>
        <source>Offset in U</source>
        <translation>U 方向偏移</translation>
    </message>
    <message>
        <source>Offset in V</source>
        <translation>V 方向偏移</translation>
    </message>
    <message>
        <source>Rotation (°)</source>
        <translation>旋转 (°)</translation>
    </message>
    <message>
        <source>Rotation in degrees</source>
        <translation>旋转角度</translation>
    </message>
    <message>
        <source>Real-world scale</source>
        <translation>真实世界比例</translation>
    </message>
    <message>
        <source>Real size (m)</source>
        <translation>实际尺寸 (m)</translation>
    </message>
    <message>
        <source>Width of the image in metres</source>
        <translation>图像宽度（米）</translation>
    </message>
    <message>
        <source>Height of the image in metres</source>
        <translation>图像高度（米）</translation>
    </message>
    <message>
        <source>Anisotropic filter</source>
        <translation>各向异性过滤</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>%1 samples</source>
        <translation>%1 次采样</translation>
    </message>
    <message>
        <source>Anisotropy</source>
        <translation>各向异性</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>伽马</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Link texture settings</source>
        <translation>关联纹理设置</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>钳制</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Decal</source>
        <translation>贴花</translation>
    </message>
</context>
<context>
    <name>kxStyle</name>
    <message>
        <source>several values</source>
        <translation>多个值</translation>
    </message>
</context>
</TS>
