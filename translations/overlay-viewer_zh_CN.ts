<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>KeyList</name>
    <message>
        <source>%1 is the key of &quot;%2&quot; in the menu and of &quot;%3&quot; in %4.</source>
        <translation>%1 同时是菜单中“%2”和%4中“%3”的按键。</translation>
    </message>
</context>
<context>
    <name>ModuleCategory</name>
    <message>
        <source>Scene</source>
        <translation>场景</translation>
    </message>
</context>
<context>
    <name>ReadOut</name>
    <message>
        <source>Top Left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Anchor: %1 (x %2, y %3 of the view)</source>
        <translation>锚点：%1（视图的 x %2，y %3）</translation>
    </message>
    <message>
        <source>Anchor: x %1, y %2 of the view</source>
        <translation>锚点：视图的 x %1，y %2</translation>
    </message>
    <message>
        <source>Offset: x %1 pt, y %2 pt</source>
        <translation>偏移：x %1 pt，y %2 pt</translation>
    </message>
</context>
<context>
    <name>Step</name>
    <message>
        <source>Create &quot;%1&quot;</source>
        <translation>创建“%1”</translation>
    </message>
    <message>
        <source>Create %1 overlays</source>
        <translation>创建 %1 个叠加层</translation>
    </message>
    <message>
        <source>Create %1 groups</source>
        <translation>创建 %1 个组</translation>
    </message>
    <message>
        <source>Create %1 switches</source>
        <translation>创建 %1 个开关</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>复制“%1”</translation>
    </message>
    <message>
        <source>Duplicate %1 items</source>
        <translation>复制 %1 个项目</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>删除“%1”</translation>
    </message>
    <message>
        <source>Delete %1 items</source>
        <translation>删除 %1 个项目</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>将“%1”编组</translation>
    </message>
    <message>
        <source>Group %1 items</source>
        <translation>将 %1 个项目编组</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>移动“%1”</translation>
    </message>
    <message>
        <source>Move %1 items</source>
        <translation>移动 %1 个项目</translation>
    </message>
    <message>
        <source>Rename to &quot;%1&quot;</source>
        <translation>重命名为“%1”</translation>
    </message>
    <message>
        <source>Rename %1 items</source>
        <translation>重命名 %1 个项目</translation>
    </message>
    <message>
        <source>Switch on &quot;%1&quot;</source>
        <translation>打开“%1”</translation>
    </message>
    <message>
        <source>Switch on %1 items</source>
        <translation>打开 %1 个项目</translation>
    </message>
    <message>
        <source>Switch off &quot;%1&quot;</source>
        <translation>关闭“%1”</translation>
    </message>
    <message>
        <source>Switch off %1 items</source>
        <translation>关闭 %1 个项目</translation>
    </message>
    <message>
        <source>Toggle &quot;%1&quot;</source>
        <translation>切换“%1”</translation>
    </message>
    <message>
        <source>Toggle %1 items</source>
        <translation>切换 %1 个项目</translation>
    </message>
    <message>
        <source>Set type of &quot;%1&quot;</source>
        <translation>设置“%1”的类型</translation>
    </message>
    <message>
        <source>Set type of %1 overlays</source>
        <translation>设置 %1 个叠加层的类型</translation>
    </message>
    <message>
        <source>Set text of &quot;%1&quot;</source>
        <translation>设置“%1”的文本</translation>
    </message>
    <message>
        <source>Set text of %1 overlays</source>
        <translation>设置 %1 个叠加层的文本</translation>
    </message>
    <message>
        <source>Set font of &quot;%1&quot;</source>
        <translation>设置“%1”的字体</translation>
    </message>
    <message>
        <source>Set font of %1 overlays</source>
        <translation>设置 %1 个叠加层的字体</translation>
    </message>
    <message>
        <source>Set font colour of &quot;%1&quot;</source>
        <translation>设置“%1”的字体颜色</translation>
    </message>
    <message>
        <source>Set font colour of %1 overlays</source>
        <translation>设置 %1 个叠加层的字体颜色</translation>
    </message>
    <message>
        <source>Set background colour of &quot;%1&quot;</source>
        <translation>设置“%1”的背景颜色</translation>
    </message>
    <message>
        <source>Set background colour of %1 overlays</source>
        <translation>设置 %1 个叠加层的背景颜色</translation>
    </message>
    <message>
        <source>Set background transparency of &quot;%1&quot;</source>
        <translation>设置“%1”的背景透明度</translation>
    </message>
    <message>
        <source>Set background transparency of %1 overlays</source>
        <translation>设置 %1 个叠加层的背景透明度</translation>
    </message>
    <message>
        <source>Set image of &quot;%1&quot;</source>
        <translation>设置“%1”的图像</translation>
    </message>
    <message>
        <source>Set image of %1 overlays</source>
        <translation>设置 %1 个叠加层的图像</translation>
    </message>
    <message>
        <source>Set size type of &quot;%1&quot;</source>
        <translation>设置“%1”的缩放方式</translation>
    </message>
    <message>
        <source>Set size type of %1 overlays</source>
        <translation>设置 %1 个叠加层的缩放方式</translation>
    </message>
    <message>
        <source>Set size of &quot;%1&quot;</source>
        <translation>设置“%1”的大小</translation>
    </message>
    <message>
        <source>Set size of %1 overlays</source>
        <translation>设置 %1 个叠加层的大小</translation>
    </message>
    <message>
        <source>Set anchor of &quot;%1&quot;</source>
        <translation>设置“%1”的锚点</translation>
    </message>
    <message>
        <source>Set anchor of %1 overlays</source>
        <translation>设置 %1 个叠加层的锚点</translation>
    </message>
    <message>
        <source>Set offset of &quot;%1&quot;</source>
        <translation>设置“%1”的偏移</translation>
    </message>
    <message>
        <source>Set offset of %1 overlays</source>
        <translation>设置 %1 个叠加层的偏移</translation>
    </message>
    <message>
        <source>Set horizontal offset of &quot;%1&quot;</source>
        <translation>设置“%1”的水平偏移</translation>
    </message>
    <message>
        <source>Set horizontal offset of %1 overlays</source>
        <translation>设置 %1 个叠加层的水平偏移</translation>
    </message>
    <message>
        <source>Set vertical offset of &quot;%1&quot;</source>
        <translation>设置“%1”的垂直偏移</translation>
    </message>
    <message>
        <source>Set vertical offset of %1 overlays</source>
        <translation>设置 %1 个叠加层的垂直偏移</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot; in the view</source>
        <translation>在视图中移动“%1”</translation>
    </message>
    <message>
        <source>Move %1 overlays in the view</source>
        <translation>在视图中移动 %1 个叠加层</translation>
    </message>
    <message>
        <source>Paste &quot;%1&quot;</source>
        <translation>粘贴“%1”</translation>
    </message>
    <message>
        <source>Paste %1 items</source>
        <translation>粘贴 %1 个项目</translation>
    </message>
    <message>
        <source>Cut &quot;%1&quot;</source>
        <translation>剪切“%1”</translation>
    </message>
    <message>
        <source>Cut %1 items</source>
        <translation>剪切 %1 个项目</translation>
    </message>
</context>
<context>
    <name>viewer</name>
    <message>
        <source>Overlay Viewer</source>
        <translation>叠加层查看器</translation>
    </message>
</context>
<context>
    <name>viewer::ClipboardActions</name>
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
</context>
<context>
    <name>viewer::CommandLine</name>
    <message>
        <source>Shows a scene and its overlays, and hosts modules.</source>
        <translation>显示场景及其叠加层，并承载模块。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Load this module instead of the editor; may be repeated.</source>
        <translation>加载此模块以代替编辑器；可重复使用。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Paint a backdrop instead of the 3D view.</source>
        <translation>绘制背景以代替 3D 视图。</translation>
    </message>
    <message>
        <source>Save a picture of the window once all is shown, and quit.</source>
        <translation>全部显示后保存窗口图片并退出。</translation>
    </message>
    <message>
        <source>scene</source>
        <translation>场景</translation>
    </message>
    <message>
        <source>Scene file to open.</source>
        <translation>要打开的场景文件。</translation>
    </message>
    <message>
        <source>[scene.json]</source>
        <translation>[scene.json]</translation>
    </message>
    <message>
        <source>Only one scene can be opened.</source>
        <translation>只能打开一个场景。</translation>
    </message>
    <message>
        <source>The option --screenshot needs the name of a file.</source>
        <translation>选项 --screenshot 需要文件名。</translation>
    </message>
    <message>
        <source>Run without window and display; ask nothing.</source>
        <translation>在没有窗口和显示器的情况下运行，不作任何询问。</translation>
    </message>
    <message>
        <source>Open this scene.</source>
        <translation>打开此场景。</translation>
    </message>
    <message>
        <source>Headless: save the scene.</source>
        <translation>无窗口运行：保存场景。</translation>
    </message>
    <message>
        <source>Headless: save a picture of the view.</source>
        <translation>无窗口运行：保存视图图片。</translation>
    </message>
    <message>
        <source>Size of the exported picture; 1920x1080 unless given.</source>
        <translation>导出图片的尺寸；默认为 1920x1080。</translation>
    </message>
    <message>
        <source>WIDTHxHEIGHT</source>
        <translation>宽x高</translation>
    </message>
    <message>
        <source>Dots per inch of the exported picture; 96 unless given.</source>
        <translation>导出图片每英寸的点数；默认为 96。</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Export without backdrop.</source>
        <translation>导出时不含背景。</translation>
    </message>
    <message>
        <source>The option --%1 needs --headless.</source>
        <translation>选项 --%1 需要 --headless。</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>选项 --%1 需要一个值。</translation>
    </message>
    <message>
        <source>The size &quot;%1&quot; is none: 3840x2160 would be one, up to %2 in each direction.</source>
        <translation>“%1”不是有效尺寸；例如 3840x2160，每个方向最大为 %2。</translation>
    </message>
    <message>
        <source>The dots per inch must be a number from 1 to %1, and &quot;%2&quot; is none.</source>
        <translation>每英寸点数必须是 1 到 %1 之间的数字，“%2”不符合要求。</translation>
    </message>
    <message>
        <source>&quot;%1 --help&quot; lists all options.</source>
        <translation>“%1 --help”列出所有选项。</translation>
    </message>
    <message>
        <source>Language of texts and numbers, such as de or zh_CN; that of the desktop unless given.</source>
        <translation>文本和数字的语言，例如 de 或 zh_CN；未指定时使用桌面语言。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a language: de would be one.</source>
        <translation>“%1”不是语言名称；例如 de 就是。</translation>
    </message>
    <message>
        <source>Run this script once the scene is open.</source>
        <translation>场景打开后运行此脚本。</translation>
    </message>
    <message>
        <source>Record what is done to the scene as a script.</source>
        <translation>将对场景的操作录制为脚本。</translation>
    </message>
    <message>
        <source>
A headless run returns:
  0  all was done
  2  the arguments are wrong
  3  done, but an image that is shown cannot be read; a placeholder was drawn
  4  the scene cannot be read
  5  the scene or the picture cannot be written
  6  a module cannot be loaded
  7  the script cannot be read, or failed; nothing was written
  8  the script was interrupted; nothing was written
</source>
        <translation>
无窗口运行的返回值：
  0  全部完成
  2  参数错误
  3  已完成，但某个显示的图像无法读取，已绘制占位图
  4  无法读取场景
  5  无法写入场景或图片
  6  无法加载模块
  7  脚本无法读取或失败，未写入任何内容
  8  脚本已中断，未写入任何内容
</translation>
    </message>
    <message>
        <source>The option --record needs a window: a run without one has nobody to record.</source>
        <translation>选项 --record 需要窗口：没有窗口就没有可录制的操作。</translation>
    </message>
    <message>
        <source>The name of the scene is empty.</source>
        <translation>场景的名称为空。</translation>
    </message>
    <message>
        <source>The option --screenshot needs a window: --export saves a picture without one.</source>
        <translation>选项 --screenshot 需要窗口：--export 可在没有窗口时保存图片。</translation>
    </message>
    <message>
        <source>The option --%1 can be given only once.</source>
        <translation>选项 --%1 只能给出一次。</translation>
    </message>
</context>
<context>
    <name>viewer::EditLayer</name>
    <message>
        <source>Outlines of what is selected</source>
        <translation>所选内容的轮廓</translation>
    </message>
</context>
<context>
    <name>viewer::FileActions</name>
    <message>
        <source>&amp;%1  %2</source>
        <translation>&amp;%1  %2</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近打开(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;New Scene</source>
        <translation>新建场景(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open Scene…</source>
        <translation>打开场景(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>清空列表(&amp;C)</translation>
    </message>
</context>
<context>
    <name>viewer::FileIOService</name>
    <message>
        <source>Images (%1)</source>
        <translation>图像 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>viewer::FileQuestions</name>
    <message>
        <source>Scenes (*.json);;All files (*)</source>
        <translation>场景 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>未保存的更改</translation>
    </message>
    <message>
        <source>The scene &quot;%1&quot; has changes that are not saved.</source>
        <translation>场景“%1”有未保存的更改。</translation>
    </message>
    <message>
        <source>They are lost unless you save them.</source>
        <translation>如果不保存，这些更改将会丢失。</translation>
    </message>
    <message>
        <source>Recover Work</source>
        <translation>恢复工作</translation>
    </message>
    <message>
        <source>The viewer did not end properly. Changes to &quot;%1&quot; up to %2 can be recovered.</source>
        <translation>查看器未正常结束。可以恢复“%1”截至 %2 的更改。</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>以后(&amp;L)</translation>
    </message>
    <message>
        <source>Open Scene</source>
        <translation>打开场景</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>保存场景</translation>
    </message>
    <message>
        <source>untitled.json</source>
        <translation>未命名.json</translation>
    </message>
    <message>
        <source>Run Script</source>
        <translation>运行脚本</translation>
    </message>
    <message>
        <source>Scripts (*.js);;All files (*)</source>
        <translation>脚本 (*.js);;所有文件 (*)</translation>
    </message>
    <message>
        <source>File Changed</source>
        <translation>文件已更改</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; was changed by another program since it was last opened or saved here.</source>
        <translation>自上次在此处打开或保存以来，文件“%1”已被其他程序更改。</translation>
    </message>
    <message>
        <source>Saving overwrites these changes. To keep both, cancel and save under another name.</source>
        <translation>保存会覆盖这些更改。要保留两者，请取消并以其他名称保存。</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>覆盖(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
</context>
<context>
    <name>viewer::GuideWindow</name>
    <message>
        <source>The user guide was not installed with the viewer.</source>
        <translation>查看器未附带安装用户指南。</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>用户指南</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目录</translation>
    </message>
</context>
<context>
    <name>viewer::HeadlessRun</name>
    <message>
        <source>The picture &quot;%1&quot; cannot be written: %2</source>
        <translation>无法写入图片“%1”：%2</translation>
    </message>
    <message>
        <source>it needs too much memory</source>
        <translation>所需内存过大</translation>
    </message>
    <message>
        <source>Still opening &quot;%1&quot; after %2 s.</source>
        <translation>%2 秒后仍在打开“%1”。</translation>
    </message>
    <message>
        <source>Still running &quot;%1&quot; after %2 s.</source>
        <translation>%2 秒后仍在运行“%1”。</translation>
    </message>
    <message>
        <source>Still saving &quot;%1&quot; after %2 s.</source>
        <translation>%2 秒后仍在保存“%1”。</translation>
    </message>
    <message>
        <source>Still drawing &quot;%1&quot; after %2 s.</source>
        <translation>%2 秒后仍在绘制“%1”。</translation>
    </message>
    <message>
        <source>its format knows no transparency, as PNG does</source>
        <translation>该格式不支持透明，PNG 则支持</translation>
    </message>
    <message>
        <source>Still reading the images of &quot;%1&quot; after %2 s.</source>
        <translation>%2 秒后仍在读取“%1”的图像。</translation>
    </message>
    <message>
        <source>Warning: the image &quot;%1&quot; of %2 cannot be read, but is not shown either.</source>
        <translation>警告：无法读取 %2 的图像“%1”，但它也未被显示。</translation>
    </message>
    <message>
        <source>Warning: the image &quot;%1&quot; of %2 cannot be read; a placeholder stands for it.</source>
        <translation>警告：无法读取 %2 的图像“%1”，已用占位图代替。</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <comment>the name of an overlay</comment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between names</comment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>viewer::HistoryModel</name>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>The scene was saved in this state</source>
        <translation>场景保存于此状态</translation>
    </message>
</context>
<context>
    <name>viewer::HistoryPanel</name>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>步骤</translation>
    </message>
</context>
<context>
    <name>viewer::Journal</name>
    <message>
        <source>Unsaved work cannot be kept safe in %1.</source>
        <translation>未保存的工作无法备份到 %1。</translation>
    </message>
    <message>
        <source>%1: the file cannot be read: %2</source>
        <translation>%1：无法读取文件：%2</translation>
    </message>
</context>
<context>
    <name>viewer::JsonBounds</name>
    <message>
        <source>byte %1: %2</source>
        <translation>第 %1 字节：%2</translation>
    </message>
    <message>
        <source>expected at most %L1 values, found more</source>
        <translation>应最多有 %L1 个值，实际更多</translation>
    </message>
    <message>
        <source>expected at most %L1 keys in an object, found more</source>
        <translation>对象中应最多有 %L1 个键，实际更多</translation>
    </message>
    <message>
        <source>expected at most %L1 levels of nesting, found more</source>
        <translation>应最多嵌套 %L1 层，实际更多</translation>
    </message>
</context>
<context>
    <name>viewer::JsonRecord</name>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>a number between -1e9 and 1e9</source>
        <translation>-1e9 到 1e9 之间的数字</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>a list of two numbers</source>
        <translation>由两个数字组成的列表</translation>
    </message>
    <message>
        <source>a colour such as &quot;#ff8800&quot; or &quot;#ff880080&quot;, or null</source>
        <translation>颜色（如 &quot;#ff8800&quot; 或 &quot;#ff880080&quot;）或 null</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation>&quot; 或 &quot;</translation>
    </message>
    <message>
        <source>expected %1, found nothing</source>
        <translation>应为%1，实际为空</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>expected at most %1 levels of nesting, found more</source>
        <translation>应最多嵌套 %1 层，实际更多</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null</translation>
    </message>
    <message>
        <source>a list of %1</source>
        <translation>包含 %1 项的列表</translation>
    </message>
    <message>
        <source>the text %1</source>
        <translation>文本 %1</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>应为%1，实际为%2</translation>
    </message>
</context>
<context>
    <name>viewer::MainWindow</name>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>%1[*] — %2</source>
        <translation>%1[*] — %2</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Reset View</source>
        <translation>重置视图(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>全屏(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Modules</source>
        <translation>模块(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts…</source>
        <translation>键盘快捷键(&amp;K)…</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>关于 %1(&amp;A)</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Shows a scene and its text and image overlays, and hosts the modules that edit them.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;显示场景及其文本和图像叠加层，并承载编辑它们的模块。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>The command of the menu goes first.</source>
        <translation>菜单命令优先。</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation>用户指南(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>历史记录(&amp;H)</translation>
    </message>
</context>
<context>
    <name>viewer::MainWindowService</name>
    <message>
        <source>A module named &quot;%1&quot; is registered already; the second one is not shown.</source>
        <translation>已注册名为“%1”的模块；第二个将不显示。</translation>
    </message>
</context>
<context>
    <name>viewer::ModuleLoader</name>
    <message>
        <source>The module &quot;%1&quot; is missing: there is no such file.</source>
        <translation>缺少模块“%1”：没有这个文件。</translation>
    </message>
    <message>
        <source>The module &quot;%1&quot; cannot be loaded: %2</source>
        <translation>无法加载模块“%1”：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a module: it has no entry &quot;initPlugin&quot;.</source>
        <translation>“%1”不是模块：没有入口“initPlugin”。</translation>
    </message>
    <message>
        <source>The module &quot;%1&quot; failed to start: %2</source>
        <translation>模块“%1”启动失败：%2</translation>
    </message>
    <message>
        <source>The module &quot;%1&quot; failed to start.</source>
        <translation>模块“%1”启动失败。</translation>
    </message>
</context>
<context>
    <name>viewer::MoveActions</name>
    <message>
        <source>Move &amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>下移(&amp;D)</translation>
    </message>
    <message>
        <source>Move &amp;In</source>
        <translation>移入(&amp;I)</translation>
    </message>
    <message>
        <source>Move &amp;Out</source>
        <translation>移出(&amp;O)</translation>
    </message>
    <message>
        <source>Move %1 items</source>
        <translation>移动 %1 个项目</translation>
    </message>
</context>
<context>
    <name>viewer::Notice</name>
    <message>
        <source>Dismiss</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>viewer::OverlayService</name>
    <message>
        <source>Group %1</source>
        <translation>组 %1</translation>
    </message>
    <message>
        <source>Switch %1</source>
        <translation>开关 %1</translation>
    </message>
    <message>
        <source>Text %1</source>
        <translation>文本 %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>副本</translation>
    </message>
    <message>
        <source>%1 Copy</source>
        <translation>%1 副本</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
</context>
<context>
    <name>viewer::RecordedService</name>
    <message>
        <source>The recording &quot;%1&quot; cannot be written: %2</source>
        <translation>无法写入录制文件“%1”：%2</translation>
    </message>
</context>
<context>
    <name>viewer::SceneClipboard</name>
    <message>
        <source>These overlays cannot be copied: they lie in too many groups.</source>
        <translation>无法复制这些叠加层：它们所在的组层数过多。</translation>
    </message>
    <message>
        <source>There are no overlays on the clipboard.</source>
        <translation>剪贴板中没有叠加层。</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>剪贴板</translation>
    </message>
    <message>
        <source>The scene that was copied is empty.</source>
        <translation>所复制的场景为空。</translation>
    </message>
</context>
<context>
    <name>viewer::SceneDocument</name>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>……以及另外 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>The scene was not opened.</source>
        <translation>未打开场景。</translation>
    </message>
</context>
<context>
    <name>viewer::SceneReader</name>
    <message>
        <source>an overlay scene</source>
        <translation>叠加层场景</translation>
    </message>
    <message>
        <source>expected a list, found nothing</source>
        <translation>应为列表，实际为空</translation>
    </message>
    <message>
        <source>expected &quot;%1&quot;, found %2; this is not an overlay scene</source>
        <translation>应为“%1”，实际为%2；这不是叠加层场景</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>空</translation>
    </message>
    <message>
        <source>expected at most %1, found %2; a newer version of the program wrote this scene</source>
        <translation>应最高为 %1，实际为 %2；此场景由较新版本的程序写入</translation>
    </message>
    <message>
        <source>expected %1</source>
        <translation>应为 %1</translation>
    </message>
    <message>
        <source>expected at most %L1 levels of groups, found more</source>
        <translation>应最多有 %L1 层组，实际更多</translation>
    </message>
    <message>
        <source>nothing in an overlay</source>
        <translation>叠加层中为空</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is disabled, because its switch has another enabled child before it</source>
        <translation>“%1”已禁用，因为其所在开关中前面已有启用的子项</translation>
    </message>
    <message>
        <source>the image file %1 is missing</source>
        <translation>缺少图像文件 %1</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>第 %1 字节：%2</translation>
    </message>
    <message>
        <source>expected JSON; %1</source>
        <translation>应为 JSON；%1</translation>
    </message>
    <message>
        <source>expected JSON; line %1, %2</source>
        <translation>应为 JSON；第 %1 行，%2</translation>
    </message>
    <message>
        <source>expected a number between -1e9 and 1e9, found %1</source>
        <translation>应为 -1e9 到 1e9 之间的数字，实际为 %1</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有这个文件</translation>
    </message>
    <message>
        <source>expected a scene file, found a folder</source>
        <translation>应为场景文件，实际为文件夹</translation>
    </message>
    <message>
        <source>expected a scene file, found a device</source>
        <translation>应为场景文件，实际为设备</translation>
    </message>
    <message>
        <source>expected at most %L1 bytes, found %L2</source>
        <translation>应最多有 %L1 字节，实际为 %L2</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
</context>
<context>
    <name>viewer::SceneWriter</name>
    <message>
        <source>%1: the scene cannot be written: it has more than %L2 levels of groups</source>
        <translation>%1：无法写入场景：组的层数超过 %L2</translation>
    </message>
    <message>
        <source>%1: the scene cannot be written: %2</source>
        <translation>%1：无法写入场景：%2</translation>
    </message>
    <message>
        <source>A number of &quot;%1&quot; cannot be written; %L2 stands for it now.</source>
        <translation>“%1”的一个数值无法写入，现已替换为 %L2。</translation>
    </message>
</context>
<context>
    <name>viewer::Screenshot</name>
    <message>
        <source>The picture &quot;%1&quot; cannot be written: %2</source>
        <translation>无法写入图片“%1”：%2</translation>
    </message>
</context>
<context>
    <name>viewer::ScriptActions</name>
    <message>
        <source>R&amp;un Script…</source>
        <translation>运行脚本(&amp;U)…</translation>
    </message>
    <message>
        <source>Ran %1</source>
        <translation>已运行 %1</translation>
    </message>
    <message>
        <source>%1
The scene is as it was before.</source>
        <translation>%1
场景保持原样。</translation>
    </message>
</context>
<context>
    <name>viewer::ScriptBridge</name>
    <message>
        <source>readText(path) takes one string, the path of a file.</source>
        <translation>readText(path) 需要一个字符串，即文件路径。</translation>
    </message>
</context>
<context>
    <name>viewer::ScriptCall</name>
    <message>
        <source>The number of arguments is wrong: %1 was called with %2.</source>
        <translation>参数个数错误：调用 %1 时给出了 %2 个。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be the id of a node, which is a whole number.</source>
        <translation>%1：“%2”必须是节点标识，即整数。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be an array with the ids of nodes.</source>
        <translation>%1：“%2”必须是节点标识的数组。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be a whole number.</source>
        <translation>%1：“%2”必须是整数。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be one of %3.</source>
        <translation>%1：“%2”必须是以下值之一：%3。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be a number.</source>
        <translation>%1：“%2”必须是数字。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be true or false.</source>
        <translation>%1：“%2”必须是 true 或 false。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be a string.</source>
        <translation>%1：“%2”必须是字符串。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be a colour, as &quot;#rrggbb&quot; or &quot;#aarrggbb&quot;, or null for none.</source>
        <translation>%1：“%2”必须是 &quot;#rrggbb&quot; 或 &quot;#aarrggbb&quot; 形式的颜色，或 null 表示无颜色。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; must be a point, as {x: 0.5, y: 1}.</source>
        <translation>%1：“%2”必须是 {x: 0.5, y: 1} 形式的点。</translation>
    </message>
</context>
<context>
    <name>viewer::ScriptInWindow</name>
    <message>
        <source>The script &quot;%1&quot; is running.</source>
        <translation>脚本“%1”正在运行。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Run Script</source>
        <translation>运行脚本</translation>
    </message>
    <message>
        <source>The script is being ended.</source>
        <translation>正在结束脚本。</translation>
    </message>
</context>
<context>
    <name>viewer::ScriptRun</name>
    <message>
        <source>Run %1</source>
        <translation>运行 %1</translation>
    </message>
    <message>
        <source>The script &quot;%1&quot; was interrupted.</source>
        <translation>脚本“%1”已中断。</translation>
    </message>
</context>
<context>
    <name>viewer::ScriptSource</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>没有文件“%1”。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large: 16 MB can be read.</source>
        <translation>文件“%1”过大：最多可读取 16 MB。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2.</source>
        <translation>无法读取文件“%1”：%2。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no text in UTF-8.</source>
        <translation>文件“%1”不是 UTF-8 文本。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not lie in the script&apos;s folder.</source>
        <translation>文件“%1”不在脚本所在的文件夹中。</translation>
    </message>
</context>
<context>
    <name>viewer::SearchGuide</name>
    <message>
        <source>Search result</source>
        <translation>搜索结果</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>未找到</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>找到 %n 项</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected, but hidden by the search</source>
        <translation>
            <numerusform>%n 项已选择，但被搜索隐藏</numerusform>
        </translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>重新搜索</translation>
    </message>
    <message numerus="yes">
        <source>%n changed since the search</source>
        <translation>
            <numerusform>搜索后有 %n 项更改</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>viewer::ShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Shortcuts shown: %1</source>
        <translation>显示的快捷键：%1</translation>
    </message>
    <message>
        <source>No shortcut matches.</source>
        <translation>没有匹配的快捷键。</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 或 %2</translation>
    </message>
</context>
<context>
    <name>viewer::UndoActions</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销(&amp;U)：%1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做(&amp;R)：%1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
</context>
<context>
    <name>viewer::ViewArea</name>
    <message>
        <source>switched off for this run</source>
        <translation>本次运行已关闭</translation>
    </message>
    <message>
        <source>No 3D view (%1): painted backdrop</source>
        <translation>无 3D 视图（%1）：绘制的背景</translation>
    </message>
    <message>
        <source>3D view</source>
        <translation>3D 视图</translation>
    </message>
    <message>
        <source>3D view: %1</source>
        <translation>3D 视图：%1</translation>
    </message>
    <message>
        <source>View of the scene</source>
        <translation>场景视图</translation>
    </message>
</context>
<context>
    <name>viewer::ViewerSession</name>
    <message>
        <source>Opened %1</source>
        <translation>已打开 %1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>There are more image files than can be watched. When one of the others changes, it is shown within a few seconds.</source>
        <translation>图像文件多于可监视的数量。其余文件发生更改时，会在几秒内显示。</translation>
    </message>
    <message>
        <source>Unsaved changes to &quot;%1&quot; cannot be recovered.
%2
The file is kept as %3.</source>
        <translation>无法恢复对“%1”的未保存更改。
%2
该文件保留为 %3。</translation>
    </message>
</context>
<context>
    <name>viewer::Viewport</name>
    <message>
        <source>the platform &quot;%1&quot; has no OpenGL</source>
        <translation>平台“%1”不支持 OpenGL</translation>
    </message>
    <message>
        <source>no OpenGL context can be created</source>
        <translation>无法创建 OpenGL 上下文</translation>
    </message>
    <message>
        <source>OpenGL 2 is needed</source>
        <translation>需要 OpenGL 2</translation>
    </message>
    <message>
        <source>the graphics driver refuses the shaders</source>
        <translation>图形驱动程序拒绝着色器</translation>
    </message>
</context>
</TS>
