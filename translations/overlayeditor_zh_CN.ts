<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>kxOverlayEditor</name>
    <message>
        <source>Overlays</source>
        <translation>叠加层</translation>
    </message>
    <message>
        <source>Delete Overlays</source>
        <translation>删除叠加层</translation>
    </message>
    <message>
        <source>Duplicate Overlay</source>
        <translation>复制叠加层</translation>
    </message>
    <message>
        <source>Rename Overlay</source>
        <translation>重命名叠加层</translation>
    </message>
    <message>
        <source>Find Overlay</source>
        <translation>查找叠加层</translation>
    </message>
    <message>
        <source>Select All Overlays</source>
        <translation>选择所有叠加层</translation>
    </message>
    <message>
        <source>Deselect All Overlays</source>
        <translation>取消选择所有叠加层</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>反选</translation>
    </message>
    <message>
        <source>Toggle Overlay Enabled State</source>
        <translation>切换叠加层启用状态</translation>
    </message>
    <message>
        <source>Create Group</source>
        <translation>创建组</translation>
    </message>
    <message>
        <source>Create Group from selection</source>
        <translation>从所选内容创建组</translation>
    </message>
    <message>
        <source>Overlay Editor</source>
        <translation>叠加层编辑器</translation>
    </message>
    <message>
        <source>Load Texture</source>
        <translation>加载纹理</translation>
    </message>
    <message>
        <source>Create Overlay</source>
        <translation>创建叠加层</translation>
    </message>
    <message>
        <source>Create Group	</source>
        <translation>创建组	</translation>
    </message>
    <message>
        <source>Create Switch</source>
        <translation>创建开关</translation>
    </message>
    <message>
        <source>Duplicate Overlays	</source>
        <translation>复制叠加层	</translation>
    </message>
    <message>
        <source>Delete Overlays	</source>
        <translation>删除叠加层	</translation>
    </message>
    <message>
        <source>Rename Overlay	</source>
        <translation>重命名叠加层	</translation>
    </message>
    <message>
        <source>Group Selection	</source>
        <translation>将所选内容编组	</translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Toggle	</source>
        <translation>切换	</translation>
    </message>
    <message>
        <source>Select All	</source>
        <translation>全选	</translation>
    </message>
    <message>
        <source>Deselect All	</source>
        <translation>取消全选	</translation>
    </message>
    <message>
        <source>Invert Selection	</source>
        <translation>反选	</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Create a new overlay</source>
        <translation>创建新的叠加层</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Duplicates the currently selected overlays</source>
        <translation>复制当前选定的叠加层</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Deletes the currently selected overlays</source>
        <translation>删除当前选定的叠加层</translation>
    </message>
    <message>
        <source>QuickActions</source>
        <translation>快捷操作</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>水平偏移</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>垂直偏移</translation>
    </message>
</context>
<context>
    <name>kxOverlayEditorGUI</name>
    <message>
        <source>Overlay Editor</source>
        <translation>叠加层编辑器</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Font Color</source>
        <translation>字体颜色</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Background Transparency</source>
        <translation>背景透明度</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>背景颜色</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Size and Position</source>
        <translation>大小和位置</translation>
    </message>
    <message>
        <source>Offset XY</source>
        <translation>偏移 XY</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation>绝对</translation>
    </message>
    <message>
        <source>Relative</source>
        <translation>相对</translation>
    </message>
</context>
</TS>
