<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutForm</name>
    <message>
        <source>About Ovisto</source>
        <translation>关于 Ovisto</translation>
    </message>
    <message>
        <source>Shows what a JPEG photograph tells about itself, and lets you edit it: titles, keywords, dates, the camera&apos;s notes. The picture itself is never compressed again.</source>
        <translation>显示 JPEG 照片自身携带的信息，并可进行编辑：标题、关键字、日期、相机记录等。图像本身绝不会被重新压缩。</translation>
    </message>
    <message>
        <source>System information</source>
        <translation>系统信息</translation>
    </message>
    <message>
        <source>&amp;System Information</source>
        <translation>系统信息(&amp;S)</translation>
    </message>
    <message>
        <source>Show what is known about this computer</source>
        <translation>显示这台计算机的已知信息</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Version of the program</source>
        <translation>程序的版本</translation>
    </message>
    <message>
        <source>Libraries that the program is made with</source>
        <translation>程序所用的库</translation>
    </message>
    <message>
        <source>What is known about this computer</source>
        <translation>有关这台计算机的信息</translation>
    </message>
    <message>
        <source>Closes this window</source>
        <translation>关闭此窗口</translation>
    </message>
</context>
<context>
    <name>Advice</name>
    <message>
        <source>Change the value, or delete the property.</source>
        <translation>请更改该值，或删除该属性。</translation>
    </message>
    <message>
        <source>Close other programs, and try again.</source>
        <translation>请关闭其他程序，然后重试。</translation>
    </message>
    <message>
        <source>Type a value of the data type that is shown below it: a whole number, or a fraction such as 1/125. Several are separated by commas.</source>
        <translation>请按下方显示的数据类型输入值：整数，或 1/125 这样的分数。多个值之间用半角逗号分隔。</translation>
    </message>
    <message>
        <source>Check whether the file was moved, renamed or deleted.</source>
        <translation>请检查文件是否已被移动、重命名或删除。</translation>
    </message>
    <message>
        <source>Copy what you can to another disk, and work there.</source>
        <translation>请将可以复制的内容复制到另一个磁盘，在那里继续工作。</translation>
    </message>
    <message>
        <source>Free some space on the disk, and try again.</source>
        <translation>请释放一些磁盘空间，然后重试。</translation>
    </message>
    <message>
        <source>Check the permissions of the file and of its folder.</source>
        <translation>请检查文件及其所在文件夹的权限。</translation>
    </message>
    <message>
        <source>Check that the disk or card is connected, and that the folder was not renamed.</source>
        <translation>请检查磁盘或存储卡是否已连接，以及文件夹是否已被重命名。</translation>
    </message>
    <message>
        <source>The file is not a JPEG photograph, or it is damaged. If it was one, restore it from your backup.</source>
        <translation>该文件不是 JPEG 照片，或者已损坏。如果它原本是 JPEG 照片，请从备份中恢复。</translation>
    </message>
</context>
<context>
    <name>BatchForm</name>
    <message>
        <source>Batch Action</source>
        <translation>批处理</translation>
    </message>
    <message>
        <source>Carry out the following action on all selected images in the Files Found List...</source>
        <translation>对文件列表中的所有照片执行以下操作：</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>节点(&amp;N)</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>&amp;Set to value</source>
        <translation>设为以下值(&amp;S)</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>&amp;Delete Node</source>
        <translation>删除节点(&amp;D)</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>开始(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>The property to change in all photographs of the list</source>
        <translation>要在列表的所有照片中更改的属性</translation>
    </message>
    <message>
        <source>Gives the property the value below, in every photograph</source>
        <translation>在每张照片中将属性设为下面的值</translation>
    </message>
    <message>
        <source>The value that the property gets</source>
        <translation>属性的新值</translation>
    </message>
    <message>
        <source>Deletes the property from every photograph</source>
        <translation>从每张照片中删除该属性</translation>
    </message>
    <message>
        <source>Changes all photographs of the list</source>
        <translation>更改列表中的所有照片</translation>
    </message>
    <message>
        <source>Closes the dialog and changes nothing</source>
        <translation>关闭对话框，不作任何更改</translation>
    </message>
</context>
<context>
    <name>BatchResultForm</name>
    <message>
        <source>Batch Result</source>
        <translation>批处理结果</translation>
    </message>
    <message>
        <source>Files and results</source>
        <translation>文件和结果</translation>
    </message>
    <message>
        <source>&amp;Keep only the failed in the list</source>
        <translation>列表中只保留失败的文件(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>What became of each photograph</source>
        <translation>每张照片的处理结果</translation>
    </message>
    <message>
        <source>Closes the dialog and takes all other photographs out of the list</source>
        <translation>关闭对话框，并将其他照片移出列表</translation>
    </message>
    <message>
        <source>Closes the dialog and leaves the list as it is</source>
        <translation>关闭对话框，列表保持不变</translation>
    </message>
</context>
<context>
    <name>BatchWatch</name>
    <message>
        <source>Go on with the other files? Those that fail are listed at the end.</source>
        <translation>是否继续处理其他文件？失败的文件会在最后列出。</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>继续(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln 个已更改</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unchanged</source>
        <translation>
            <numerusform>%Ln 个未更改</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln 个失败</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not reached</source>
        <translation>
            <numerusform>%Ln 个未处理</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BrowserCapForm</name>
    <message>
        <source>Find Files</source>
        <translation>查找文件</translation>
    </message>
    <message>
        <source>Folders / Directories</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Folder to scan</source>
        <translation>要扫描的文件夹</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Go to the folder above</source>
        <translation>转到上级文件夹</translation>
    </message>
    <message>
        <source>Go to the home folder</source>
        <translation>转到主文件夹</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Scan Options</source>
        <translation>扫描选项</translation>
    </message>
    <message>
        <source>Filename Pattern</source>
        <translation>文件名模式</translation>
    </message>
    <message>
        <source>list of file extensions separated by semicolon;</source>
        <translation>文件扩展名列表，用半角分号“;”分隔</translation>
    </message>
    <message>
        <source>Scan Subfolders as well?</source>
        <translation>同时扫描子文件夹</translation>
    </message>
    <message>
        <source>Scan Subfolders of selected folder?</source>
        <translation>同时扫描所选文件夹的子文件夹</translation>
    </message>
    <message>
        <source>Add files found to list?</source>
        <translation>将找到的文件添加到列表</translation>
    </message>
    <message>
        <source>Add to list of files found (or clear)?</source>
        <translation>添加到已找到文件的列表（不勾选则先清空列表）</translation>
    </message>
    <message>
        <source>Content Filter</source>
        <translation>内容筛选</translation>
    </message>
    <message>
        <source>Containing words</source>
        <translation>包含的词语</translation>
    </message>
    <message>
        <source>Words to search for, or regular expression</source>
        <translation>要搜索的词语或正则表达式</translation>
    </message>
    <message>
        <source>(separate words with commas)</source>
        <translation>（多个词语之间用半角逗号分隔）</translation>
    </message>
    <message>
        <source>Must find ALL words?</source>
        <translation>必须包含所有词语</translation>
    </message>
    <message>
        <source>File must have all words, or any of them?</source>
        <translation>文件须包含所有词语（不勾选则包含任意一个即可）</translation>
    </message>
    <message>
        <source>Find whole words only?</source>
        <translation>全字匹配</translation>
    </message>
    <message>
        <source>Look for whole words only or part of word</source>
        <translation>只查找完整的词语（不勾选则也查找词语的一部分）</translation>
    </message>
    <message>
        <source>Treat the text above as a Regular Expression</source>
        <translation>将上方的文字视为正则表达式</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>正则表达式</translation>
    </message>
    <message>
        <source>Or, if you know how to write regular expressions, then enter your RegExp above and tick this box.</source>
        <translation>如果您会写正则表达式，也可以在上方输入，然后勾选此框。</translation>
    </message>
    <message>
        <source>Search shown values, too</source>
        <translation>同时搜索显示的值</translation>
    </message>
    <message>
        <source>Also look for the text above in the values as the property tree shows them, such as &quot;turned right&quot;</source>
        <translation>还在属性树所显示的值中查找上方的文字，例如“turned right”</translation>
    </message>
    <message>
        <source>&amp;Select Folder</source>
        <translation>选择文件夹(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>To begin, choose the folder of your photographs. Nothing is searched before you press Select Folder.</source>
        <translation>首先请选择照片所在的文件夹。按下“选择文件夹”之前不会进行搜索。</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>最近(&amp;R)</translation>
    </message>
    <message>
        <source>Folders searched lately</source>
        <translation>最近搜索过的文件夹</translation>
    </message>
    <message>
        <source>Searches the folder</source>
        <translation>搜索该文件夹</translation>
    </message>
    <message>
        <source>Closes the dialog and changes nothing</source>
        <translation>关闭对话框，不作任何更改</translation>
    </message>
</context>
<context>
    <name>ControlForm</name>
    <message>
        <source>Find Files</source>
        <translation>查找文件</translation>
    </message>
    <message>
        <source>Select &amp; scan a folder for image files</source>
        <translation>选择文件夹并扫描其中的照片</translation>
    </message>
    <message>
        <source>List of images found</source>
        <translation>已找到照片的列表</translation>
    </message>
    <message>
        <source>Images found</source>
        <translation>已找到的照片</translation>
    </message>
    <message>
        <source>Save &amp; show previous image in list</source>
        <translation>保存并显示列表中的上一张照片</translation>
    </message>
    <message>
        <source>Previous image</source>
        <translation>上一张照片</translation>
    </message>
    <message>
        <source>Save &amp; show next image in list</source>
        <translation>保存并显示列表中的下一张照片</translation>
    </message>
    <message>
        <source>Next image</source>
        <translation>下一张照片</translation>
    </message>
    <message>
        <source>S&amp;lide Show</source>
        <translation>幻灯片(&amp;L)</translation>
    </message>
    <message>
        <source>Show files listed in a slide-show</source>
        <translation>以幻灯片形式放映列表中的文件</translation>
    </message>
    <message>
        <source>&amp;Batch</source>
        <translation>批处理(&amp;B)</translation>
    </message>
    <message>
        <source>Change all files listed</source>
        <translation>更改列表中的所有文件</translation>
    </message>
    <message>
        <source>Your list of favourite keywords</source>
        <translation>您的常用关键字列表</translation>
    </message>
    <message>
        <source>Favourite keywords</source>
        <translation>常用关键字</translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation>关键字(&amp;K)</translation>
    </message>
    <message>
        <source>Load a different keyword list from a file</source>
        <translation>从文件加载其他关键字列表</translation>
    </message>
    <message>
        <source>Drop photographs or folders of them here, or choose Find Files.</source>
        <translation>将照片或照片文件夹拖放到此处，或单击“查找文件”。</translation>
    </message>
    <message>
        <source>Left click to open, right click for properties</source>
        <translation>单击左键打开，单击右键查看属性</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>OS Properties</source>
        <translation>操作系统属性</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>标题：</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>主题：</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>Ditto</source>
        <translation>同上</translation>
    </message>
    <message>
        <source>Repeat from previous image</source>
        <translation>重复上一张照片的内容</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save changes made to this file</source>
        <translation>保存对此文件所做的更改</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>重置(&amp;R)</translation>
    </message>
    <message>
        <source>Undo ALL changes made to this file</source>
        <translation>撤销对此文件所做的全部更改</translation>
    </message>
    <message>
        <source>This file has changes that are not saved yet</source>
        <translation>此文件有尚未保存的更改</translation>
    </message>
    <message>
        <source>Changes not saved</source>
        <translation>更改未保存</translation>
    </message>
    <message>
        <source>File Property Tree</source>
        <translation>文件属性树</translation>
    </message>
    <message>
        <source>File properties</source>
        <translation>文件属性</translation>
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
        <source>Current Node</source>
        <translation>当前节点</translation>
    </message>
    <message>
        <source>Name of current file</source>
        <translation>当前文件的名称</translation>
    </message>
    <message>
        <source>Tag number</source>
        <translation>标签编号</translation>
    </message>
    <message>
        <source>Show as Hex?</source>
        <translation>十六进制显示</translation>
    </message>
    <message>
        <source>Translate to hexadecimal code?</source>
        <translation>转换为十六进制代码</translation>
    </message>
    <message>
        <source>Value of property selected in tree</source>
        <translation>属性树中所选属性的值</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>缩略图</translation>
    </message>
    <message>
        <source>Values that this property can have, and what they mean</source>
        <translation>此属性可取的值及其含义</translation>
    </message>
    <message>
        <source>Known values</source>
        <translation>已知值</translation>
    </message>
    <message>
        <source>What the value means</source>
        <translation>值的含义</translation>
    </message>
    <message>
        <source>Data type</source>
        <translation>数据类型</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>&amp;Add Node</source>
        <translation>添加节点(&amp;A)</translation>
    </message>
    <message>
        <source>Add new node</source>
        <translation>添加新节点</translation>
    </message>
    <message>
        <source>&amp;Delete Node</source>
        <translation>删除节点(&amp;D)</translation>
    </message>
    <message>
        <source>CAUTION: use at own risk!</source>
        <translation>注意：风险自负！</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>选项(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>照片(&amp;I)</translation>
    </message>
    <message>
        <source>Save &amp;XML</source>
        <translation>保存 XML(&amp;X)</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>&amp;What Does It Tell?</source>
        <translation>照片透露了什么？(&amp;W)</translation>
    </message>
    <message>
        <source>Lists what the photograph tells of people and places, and deletes what you select.</source>
        <translation>列出照片透露的有关人物和地点的信息，并删除您选择的内容。</translation>
    </message>
    <message>
        <source>&amp;Generate Report</source>
        <translation>生成报告(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>退出(&amp;E)</translation>
    </message>
    <message>
        <source>Keep Maker Notes?</source>
        <translation>保留厂商注释</translation>
    </message>
    <message>
        <source>Keep Thumbnails?</source>
        <translation>保留缩略图</translation>
    </message>
    <message>
        <source>Keep Non-standard Exif?</source>
        <translation>保留非标准 Exif</translation>
    </message>
    <message>
        <source>Keep Untouched Data?</source>
        <translation>保留未改动的数据</translation>
    </message>
    <message>
        <source>Saving changes only what you edited and leaves the rest of the file as it is. Counts from the next file opened.</source>
        <translation>保存时只更改您编辑过的内容，文件的其余部分保持原样。从下一个打开的文件起生效。</translation>
    </message>
    <message>
        <source>Read Everything?</source>
        <translation>读取全部内容</translation>
    </message>
    <message>
        <source>Shows texts in any language and the place, all as it was written. Counts from the next file opened.</source>
        <translation>显示任何语言的文字和拍摄地点，均与写入时一致。从下一个打开的文件起生效。</translation>
    </message>
    <message>
        <source>Show Technical Data?</source>
        <translation>显示技术数据</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>OS &amp;Properties</source>
        <translation>操作系统属性(&amp;P)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>帮助内容</translation>
    </message>
    <message>
        <source>Photographs and keywords</source>
        <translation>照片和关键字</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Enter inserts the keyword</source>
        <translation>按回车键插入关键字</translation>
    </message>
    <message>
        <source>Picture and its descriptions</source>
        <translation>图像及其说明</translation>
    </message>
    <message>
        <source>Title of the photograph, as the desktop shows it</source>
        <translation>照片的标题，即桌面所显示的标题</translation>
    </message>
    <message>
        <source>Comments on the photograph, as the desktop shows them</source>
        <translation>照片的备注，即桌面所显示的备注</translation>
    </message>
    <message>
        <source>Subject of the photograph, as the desktop shows it</source>
        <translation>照片的主题，即桌面所显示的主题</translation>
    </message>
    <message>
        <source>Keywords of the photograph, as the desktop shows them</source>
        <translation>照片的关键字，即桌面所显示的关键字</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Property tree</source>
        <translation>属性树</translation>
    </message>
    <message>
        <source>F2 edits the value, Delete deletes the property</source>
        <translation>F2 编辑值，Delete 删除属性</translation>
    </message>
    <message>
        <source>What the selected property is for</source>
        <translation>所选属性的用途</translation>
    </message>
    <message>
        <source>&amp;Recent Folders</source>
        <translation>最近的文件夹(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Find Files</source>
        <translation>查找文件(&amp;F)</translation>
    </message>
    <message>
        <source>Find W&amp;ords</source>
        <translation>查找文字(&amp;O)</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>重新读取(&amp;A)</translation>
    </message>
    <message>
        <source>Arrow keys open the photograph above or below; the focus then moves to the property tree</source>
        <translation>用方向键打开上一张或下一张照片；焦点随后转到属性树</translation>
    </message>
</context>
<context>
    <name>DataType</name>
    <message>
        <source>Byte</source>
        <translation>字节</translation>
    </message>
    <message>
        <source>String</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>短整数</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>长整数</translation>
    </message>
    <message>
        <source>Rational</source>
        <translation>分数</translation>
    </message>
    <message>
        <source>Signed Byte</source>
        <translation>有符号字节</translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation>未定义</translation>
    </message>
    <message>
        <source>Signed Short</source>
        <translation>有符号短整数</translation>
    </message>
    <message>
        <source>Signed Long</source>
        <translation>有符号长整数</translation>
    </message>
    <message>
        <source>Signed Rational</source>
        <translation>有符号分数</translation>
    </message>
    <message>
        <source>Unicode String</source>
        <translation>Unicode 字符串</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>单精度浮点数</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>双精度浮点数</translation>
    </message>
    <message>
        <source>Directory Position</source>
        <translation>目录位置</translation>
    </message>
    <message>
        <source>UTF-8 String</source>
        <translation>UTF-8 字符串</translation>
    </message>
    <message>
        <source>%1 Required</source>
        <translation>%1（必需）</translation>
    </message>
    <message>
        <source>%1 Protected</source>
        <translation>%1（受保护）</translation>
    </message>
</context>
<context>
    <name>FailureMessages</name>
    <message>
        <source>The report does not cover these files:</source>
        <translation>报告未涵盖以下文件：</translation>
    </message>
    <message>
        <source>There is no such file or folder:</source>
        <translation>以下文件或文件夹不存在：</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>另有 %Ln 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Other folders that could not be read (%Ln):</source>
        <translation>
            <numerusform>其他无法读取的文件夹（%Ln 个）：</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GapKeys</name>
    <message>
        <source>Width: %1</source>
        <translation>宽度：%1</translation>
    </message>
    <message>
        <source>Height: %1</source>
        <translation>高度：%1</translation>
    </message>
</context>
<context>
    <name>HelpContents</name>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>无法显示帮助内容。此程序没有附带帮助。</translation>
    </message>
    <message>
        <source>No program was found that shows web pages.</source>
        <translation>找不到可显示网页的程序。</translation>
    </message>
</context>
<context>
    <name>LeftOutLine</name>
    <message>
        <source>maker notes</source>
        <translation>厂商注释</translation>
    </message>
    <message>
        <source>thumbnails</source>
        <translation>缩略图</translation>
    </message>
    <message>
        <source>non-standard Exif</source>
        <translation>非标准 Exif</translation>
    </message>
    <message>
        <source>what is not shown</source>
        <translation>未显示的内容</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1<byte value="xd"/>
%2 : %3</source>
        <translation>%1<byte value="xd"/>
%2：%3</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>无效的过程调用或参数</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>溢出</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>类型不匹配</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>找不到文件</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>设备 I/O 错误</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>路径/文件访问错误</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>找不到路径</translation>
    </message>
    <message>
        <source>Object not set</source>
        <translation>对象未设置</translation>
    </message>
    <message>
        <source>Unexpected error</source>
        <translation>意外错误</translation>
    </message>
    <message>
        <source>It is a folder, not a file</source>
        <translation>这是文件夹，不是文件</translation>
    </message>
    <message>
        <source>It is not a folder</source>
        <translation>这不是文件夹</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>There is no folder %1</source>
        <translation>文件夹 %1 不存在</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>已中断</translation>
    </message>
    <message>
        <source>Not a regular expression: %1: %2 (at character %3)</source>
        <translation>不是有效的正则表达式：%1：%2（第 %3 个字符处）</translation>
    </message>
    <message>
        <source>The regular expression runs too long: %1</source>
        <translation>正则表达式运行时间过长：%1</translation>
    </message>
    <message>
        <source>The words &quot;%1&quot; cannot be searched for: %2. Characters such as ( * ? have a meaning; put \ before one that stands for itself.</source>
        <translation>无法搜索词语“%1”：%2。( * ? 等字符有特殊含义；要查找这些字符本身，请在前面加上 \。</translation>
    </message>
    <message>
        <source>File %1<byte value="xd"/>
Line %2 pos %3 <byte value="xd"/>
%4<byte value="xd"/>
%5</source>
        <translation>文件 %1<byte value="xd"/>
第 %2 行，位置 %3 <byte value="xd"/>
%4<byte value="xd"/>
%5</translation>
    </message>
    <message>
        <source>%1 line:%2 pos:%3 src:%4</source>
        <translation>%1，行：%2，位置：%3，原文：%4</translation>
    </message>
    <message>
        <source>Not a valid path: %1</source>
        <translation>不是有效的路径：%1</translation>
    </message>
    <message>
        <source>The document type &quot;%1&quot; cannot be loaded</source>
        <translation>无法加载文档类型“%1”</translation>
    </message>
    <message>
        <source>The content does not match the document type</source>
        <translation>内容与文档类型不符</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is not declared</source>
        <translation>实体“%1”未声明</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is outside the document, and is not read</source>
        <translation>实体“%1”在文档之外，不予读取</translation>
    </message>
    <message>
        <source>The entity cannot be read from %1</source>
        <translation>无法从 %1 读取实体</translation>
    </message>
    <message>
        <source>The entities of the document take far more memory than its text</source>
        <translation>文档中的实体占用的内存远远超过其文本</translation>
    </message>
    <message>
        <source>The document includes another one, which is not read</source>
        <translation>文档包含另一个文档，后者不予读取</translation>
    </message>
    <message>
        <source>The elements of the document nest too deep</source>
        <translation>文档的元素嵌套过深</translation>
    </message>
    <message>
        <source>The style sheet may not read %1, which is not in its folder</source>
        <translation>样式表不得读取 %1，因为它不在样式表所在的文件夹中</translation>
    </message>
    <message>
        <source>The style sheet cannot be applied</source>
        <translation>无法应用样式表</translation>
    </message>
    <message>
        <source>The style sheet takes far more memory than the documents need</source>
        <translation>样式表占用的内存远远超过文档所需</translation>
    </message>
    <message>
        <source>%1  file=%2</source>
        <translation>%1，文件：%2</translation>
    </message>
    <message>
        <source>%2: %1</source>
        <translation>%2：%1</translation>
    </message>
    <message>
        <source>Not a JPEG file - hFFD8 expected at start of file %1</source>
        <translation>不是 JPEG 文件：文件 %1 的开头应为 hFFD8</translation>
    </message>
    <message>
        <source>Header seems corrupted - unknown Marker %1 %2</source>
        <translation>文件头似乎已损坏：未知标记 %1，文件 %2</translation>
    </message>
    <message>
        <source>No StartOfStream marker found %1</source>
        <translation>找不到 StartOfStream 标记：%1</translation>
    </message>
    <message>
        <source>I don&apos;t know what type of data this node requires - can&apos;t set its value.</source>
        <translation>不知道此节点需要哪种类型的数据，因此无法设置其值。</translation>
    </message>
    <message>
        <source>The image cannot be shown without this node as it is.</source>
        <translation>此节点必须保持原样，否则图像无法显示。</translation>
    </message>
    <message>
        <source>This node is required by others and cannot be deleted by itself.</source>
        <translation>其他节点需要此节点，因此不能单独删除它。</translation>
    </message>
    <message>
        <source>Only a document that reads everything has this node; rebuilding reads a basic one.</source>
        <translation>只有在读取全部内容时，文档才有此节点；重建时只以基本方式读取。</translation>
    </message>
    <message>
        <source>The tag dictionary has no entry for this node.</source>
        <translation>标签字典中没有此节点的条目。</translation>
    </message>
    <message>
        <source>The file does not have this node, and it cannot be created without an entry in the tag dictionary.</source>
        <translation>文件中没有此节点，而标签字典中没有相应条目，因此无法创建。</translation>
    </message>
    <message numerus="yes">
        <source>%1 nodes of the file have this path.</source>
        <translation>
            <numerusform>文件中有 %1 个节点使用此路径。</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; would be written as &quot;?&quot;: in a basic document, %2 holds Western European texts only.</source>
        <translation>“%1”将被写成“?”：以基本方式读取时，%2 只能包含西欧文字。</translation>
    </message>
    <message>
        <source>Create node failed %1</source>
        <translation>创建节点失败：%1</translation>
    </message>
    <message>
        <source>A document that reads everything cannot be rebuilt; make one with xml, without --full.</source>
        <translation>读取了全部内容的文档无法重建；请用 xml 命令重新生成，不带 --full。</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>写入 %1</translation>
    </message>
    <message>
        <source>%1 write failed</source>
        <translation>写入 %1 失败</translation>
    </message>
    <message>
        <source>%1 transfer of image from existing file failed</source>
        <translation>将图像从现有文件复制到 %1 失败</translation>
    </message>
    <message>
        <source>Delete old file %1</source>
        <translation>删除旧文件 %1</translation>
    </message>
    <message>
        <source>Rename file %1 to %2</source>
        <translation>将文件 %1 重命名为 %2</translation>
    </message>
    <message>
        <source>Another program has moved or replaced the new version</source>
        <translation>另一个程序移动或替换了新版本</translation>
    </message>
    <message>
        <source>%1. The new version is in %2</source>
        <translation>%1。新版本位于 %2</translation>
    </message>
    <message>
        <source>It is saved, but not known to be on disk. %1</source>
        <translation>已保存，但无法确认是否已写入磁盘。%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved in %2</source>
        <translation>“%1”无法保存到 %2 中</translation>
    </message>
    <message>
        <source>The text has &quot;]]&gt;&quot;, which could not be read back</source>
        <translation>文本中含有“]]&gt;”，写入后将无法读回</translation>
    </message>
    <message>
        <source>The text has a control character that could not be read back</source>
        <translation>文本中含有写入后将无法读回的控制字符</translation>
    </message>
    <message>
        <source>The text has elements, which must stand in a CDATA section to be kept</source>
        <translation>文本中含有元素，必须放在 CDATA 区段中才能保留</translation>
    </message>
    <message>
        <source>A character between the changed ones could not be read, so it cannot be written.</source>
        <translation>更改的字符之间有一个字符无法读取，因此无法写入。</translation>
    </message>
    <message>
        <source>The id of an IFD element is not four hexadecimal digits: %1</source>
        <translation>IFD 元素的 id 不是四位十六进制数：%1</translation>
    </message>
    <message>
        <source>The document has more than one IMG element</source>
        <translation>文档中有多个 IMG 元素</translation>
    </message>
    <message>
        <source>The file was changed after it was read</source>
        <translation>文件在读取之后已被更改</translation>
    </message>
    <message>
        <source>The file has another picture now, which needs tables that the document does not have</source>
        <translation>文件现在包含另一幅图像，它需要的表不在文档中</translation>
    </message>
    <message>
        <source>The new version could not be read back: %1</source>
        <translation>无法读回新版本：%1</translation>
    </message>
    <message>
        <source>Temp file write failed</source>
        <translation>写入临时文件失败</translation>
    </message>
    <message>
        <source>Temp file write integer %1</source>
        <translation>向临时文件写入整数 %1</translation>
    </message>
    <message>
        <source>Temp file write long %1</source>
        <translation>向临时文件写入长整数 %1</translation>
    </message>
    <message>
        <source>Temp file write string</source>
        <translation>向临时文件写入字符串</translation>
    </message>
    <message numerus="yes">
        <source>The segment would have %1 bytes, but its length says %2</source>
        <translation>
            <numerusform>该段将有 %1 字节，但其中标明的长度为 %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The value would have %1 bytes instead of %2</source>
        <translation>
            <numerusform>该值将有 %1 字节，而不是 %2 字节</numerusform>
        </translation>
    </message>
    <message>
        <source>Exif section - calculate data length</source>
        <translation>Exif 部分：计算数据长度</translation>
    </message>
    <message>
        <source>Exif Offset Calculation failed</source>
        <translation>计算 Exif 偏移量失败</translation>
    </message>
    <message>
        <source>Can&apos;t tie up the MakerNote to its entry in the header (!??)</source>
        <translation>无法将厂商注释与头部中的对应条目关联起来</translation>
    </message>
    <message>
        <source>Exif write failed</source>
        <translation>写入 Exif 失败</translation>
    </message>
    <message>
        <source>Data format %1 error:%2</source>
        <translation>数据格式 %1 出错：%2</translation>
    </message>
    <message>
        <source>The image cannot be shown without its scan header as the last segment</source>
        <translation>扫描头必须是最后一个段，否则图像无法显示</translation>
    </message>
    <message>
        <source>The segments of the file do not lead to its image</source>
        <translation>按文件中的各段无法找到图像</translation>
    </message>
    <message>
        <source>The segment would be longer than 65,535 bytes</source>
        <translation>该段将超过 65,535 字节</translation>
    </message>
    <message numerus="yes">
        <source>The Exif segment would be %1 bytes longer than the 65,535 that it has room for; rebuilding (&quot;Keep Untouched Data?&quot; off, --rebuild) may make it shorter</source>
        <translation>
            <numerusform>Exif 段最多可容纳 65,535 字节，现将超出 %1 字节；重建（关闭“保留未改动的数据”，或使用 --rebuild）可能会使其变短</numerusform>
        </translation>
    </message>
    <message>
        <source>The Exif directories name the same bytes again and again</source>
        <translation>Exif 目录反复指向相同的字节</translation>
    </message>
    <message>
        <source>The directory could not be read, so that nothing in it can be changed</source>
        <translation>无法读取该目录，因此不能更改其中的任何内容</translation>
    </message>
    <message>
        <source>The file has one that could not be read</source>
        <translation>文件中已有此目录，但无法读取</translation>
    </message>
    <message>
        <source>The text of this entry is the place of what it leads to</source>
        <translation>此条目的文本是它所指内容的位置</translation>
    </message>
    <message>
        <source>A thumbnail in strips cannot be changed</source>
        <translation>以条带方式存储的缩略图无法更改</translation>
    </message>
    <message>
        <source>Four bytes or fewer would stand where their place is looked for</source>
        <translation>四个或更少的字节会存放在本应记录其位置的地方</translation>
    </message>
    <message>
        <source>The value is not a run of pairs of hexadecimal digits</source>
        <translation>该值不是由成对的十六进制数字组成的</translation>
    </message>
    <message>
        <source>The value stands outside its entry, and the document shows only where</source>
        <translation>该值存放在其条目之外，文档只显示其位置</translation>
    </message>
    <message>
        <source>The value has to be four bytes</source>
        <translation>该值必须为四个字节</translation>
    </message>
    <message>
        <source>Values of this data type cannot be changed</source>
        <translation>此数据类型的值无法更改</translation>
    </message>
    <message>
        <source>The old value is not all in the Exif segment</source>
        <translation>旧值没有完整地包含在 Exif 段中</translation>
    </message>
    <message>
        <source>%1 would read %2 instead of %3</source>
        <translation>%1 的值将变为 %2，而不是 %3</translation>
    </message>
    <message>
        <source>%1 would have type %2 and count %3 instead of type %4 and count %5</source>
        <translation>%1 的类型将变为 %2、计数将变为 %3，而不是类型 %4、计数 %5</translation>
    </message>
    <message>
        <source>%1 would stand at %2 instead of %3</source>
        <translation>%1 将位于 %2，而不是 %3</translation>
    </message>
    <message>
        <source>%1 would be lost</source>
        <translation>%1 将会丢失</translation>
    </message>
    <message>
        <source>%1 would be new</source>
        <translation>将会多出 %1</translation>
    </message>
    <message>
        <source>%1 would not be the same</source>
        <translation>%1 将与原来不同</translation>
    </message>
    <message>
        <source>%1 would have another link to the next directory</source>
        <translation>%1 指向下一目录的链接将会不同</translation>
    </message>
    <message>
        <source>%1 would not have the entries that it should</source>
        <translation>%1 中的条目将与应有的不符</translation>
    </message>
    <message numerus="yes">
        <source>The file would have %1 segments instead of %2</source>
        <translation>
            <numerusform>文件将有 %1 个段，而不是 %2 个</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 reads %2 instead of %3</source>
        <translation>%1 的值变成了 %2，而不是 %3</translation>
    </message>
    <message>
        <source>%1 has type %2 and count %3 instead of type %4 and count %5</source>
        <translation>%1 的类型变成了 %2、计数变成了 %3，而不是类型 %4、计数 %5</translation>
    </message>
    <message>
        <source>%1 stands at %2 instead of %3</source>
        <translation>%1 位于 %2，而不是 %3</translation>
    </message>
    <message>
        <source>%1 is lost</source>
        <translation>%1 已丢失</translation>
    </message>
    <message>
        <source>%1 is new</source>
        <translation>多出了 %1</translation>
    </message>
    <message>
        <source>%1 is not the same</source>
        <translation>%1 与原来不同</translation>
    </message>
    <message>
        <source>%1 has another link to the next directory</source>
        <translation>%1 指向下一目录的链接已不同</translation>
    </message>
    <message>
        <source>%1 does not have the entries that it should</source>
        <translation>%1 中的条目与应有的不符</translation>
    </message>
    <message numerus="yes">
        <source>The file has %1 segments instead of %2</source>
        <translation>
            <numerusform>文件有 %1 个段，而不是 %2 个</numerusform>
        </translation>
    </message>
    <message>
        <source>The header of the Exif segment</source>
        <translation>Exif 段的头部</translation>
    </message>
    <message>
        <source>The Exif segment</source>
        <translation>Exif 段</translation>
    </message>
    <message>
        <source>The image at %1</source>
        <translation>%1 处的图像</translation>
    </message>
    <message>
        <source>The segment %1</source>
        <translation>段 %1</translation>
    </message>
    <message>
        <source>The picture, or what follows it,</source>
        <translation>图像或其后的内容</translation>
    </message>
    <message>
        <source>%1 shared bytes with another value, which still has them</source>
        <translation>%1 曾与另一个值共用字节，后者仍保留着这些字节</translation>
    </message>
    <message>
        <source>The data after the picture names positions in the file, which are others now</source>
        <translation>图像之后的数据记录了文件中的位置，而这些位置已发生变化</translation>
    </message>
    <message numerus="yes">
        <source>%1 values changed, %2 unchanged, picture identical.</source>
        <translation>
            <numerusform>更改了 %1 个值，%2 个未变，图像完全相同。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. The original is kept as %2</source>
        <translation>%1。原始文件保留为 %2</translation>
    </message>
    <message>
        <source>%1. %2 was there already and stays as the original</source>
        <translation>%1。%2 先前已存在，仍作为原始文件保留</translation>
    </message>
    <message numerus="yes">
        <source>%1, and %2 more</source>
        <translation>
            <numerusform>%1，另有 %2 处</numerusform>
        </translation>
    </message>
    <message>
        <source>Position</source>
        <translation>地理位置</translation>
    </message>
    <message>
        <source>Serial numbers</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Names of people</source>
        <translation>人名</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>版权声明</translation>
    </message>
    <message>
        <source>Titles, comments and keywords</source>
        <translation>标题、备注和关键字</translation>
    </message>
    <message>
        <source>Unique identifiers</source>
        <translation>唯一标识符</translation>
    </message>
    <message>
        <source>Maker&apos;s notes</source>
        <translation>厂商注释</translation>
    </message>
    <message>
        <source>Thumbnail that is not known to show the picture</source>
        <translation>无法确认与图像相符的缩略图</translation>
    </message>
    <message>
        <source>XMP</source>
        <translation>XMP</translation>
    </message>
    <message>
        <source>IPTC and Photoshop data</source>
        <translation>IPTC 和 Photoshop 数据</translation>
    </message>
    <message>
        <source>Comment segments</source>
        <translation>注释段</translation>
    </message>
    <message>
        <source>Other application segments</source>
        <translation>其他应用程序段</translation>
    </message>
    <message>
        <source>Exif data that the program does not know</source>
        <translation>程序无法识别的 Exif 数据</translation>
    </message>
    <message>
        <source>What follows the picture</source>
        <translation>图像之后的内容</translation>
    </message>
    <message>
        <source>Unknown tag %1 in %2</source>
        <translation>%2 中的未知标签 %1</translation>
    </message>
    <message>
        <source>Extended XMP</source>
        <translation>扩展 XMP</translation>
    </message>
    <message>
        <source>Photoshop and IPTC block</source>
        <translation>Photoshop 和 IPTC 数据块</translation>
    </message>
    <message>
        <source>Comment: %1</source>
        <translation>注释：%1</translation>
    </message>
    <message>
        <source>Application segment %1 %2</source>
        <translation>应用程序段 %1 %2</translation>
    </message>
    <message>
        <source>Preview in the JFIF header</source>
        <translation>JFIF 头部中的预览图</translation>
    </message>
    <message>
        <source>Preview in a JFIF extension</source>
        <translation>JFIF 扩展中的预览图</translation>
    </message>
    <message>
        <source>Index of further pictures</source>
        <translation>其他图像的索引</translation>
    </message>
    <message>
        <source>Second Exif segment</source>
        <translation>第二个 Exif 段</translation>
    </message>
    <message>
        <source>Exif data that cannot be read in full</source>
        <translation>无法完整读取的 Exif 数据</translation>
    </message>
    <message>
        <source>Bytes in the Exif data that nothing leads to</source>
        <translation>Exif 数据中未被引用的字节</translation>
    </message>
    <message>
        <source>Directory %1, which is not shown</source>
        <translation>未显示的目录 %1</translation>
    </message>
    <message>
        <source>Thumbnail with other proportions than the picture</source>
        <translation>长宽比与图像不同的缩略图</translation>
    </message>
    <message>
        <source>Thumbnail that shows something else than the picture</source>
        <translation>内容与图像不同的缩略图</translation>
    </message>
    <message>
        <source>Thumbnail that cannot be compared with the picture</source>
        <translation>无法与图像比较的缩略图</translation>
    </message>
    <message>
        <source>Another picture</source>
        <translation>另一幅图像</translation>
    </message>
    <message>
        <source>A film</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Data of an unknown kind</source>
        <translation>未知类型的数据</translation>
    </message>
    <message>
        <source>The picture has no end, so nothing can be said about what follows it</source>
        <translation>图像没有结尾，因此无法判断其后有什么内容</translation>
    </message>
    <message>
        <source>after the picture</source>
        <translation>图像之后</translation>
    </message>
    <message>
        <source>inside the image data</source>
        <translation>图像数据内部</translation>
    </message>
    <message>
        <source>It stays, because the image data is never changed</source>
        <translation>它会保留，因为图像数据从不更改</translation>
    </message>
    <message>
        <source>It stays, because it cannot be told from the picture</source>
        <translation>它会保留，因为无法将其与图像区分开</translation>
    </message>
    <message>
        <source>It goes only with the whole Exif data</source>
        <translation>它只能随全部 Exif 数据一起删除</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 bytes, %3</source>
        <translation>
            <numerusform>%1，%2 字节，%3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 bytes, %3; the program cannot look into it</source>
        <translation>
            <numerusform>%1，%2 字节，%3；程序无法查看其内容</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. %2.</source>
        <translation>%1。%2。</translation>
    </message>
    <message>
        <source>Nothing was found that identifies a person or a place</source>
        <translation>没有发现可识别人物或地点的信息</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>f/%1</source>
        <translation>f/%1</translation>
    </message>
    <message>
        <source>%1 EV</source>
        <translation>%1 EV</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 米</translation>
    </message>
    <message>
        <source>infinity</source>
        <translation>无穷远</translation>
    </message>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
    <message>
        <source>%1° %2&apos; %3&quot;</source>
        <translation>%1°%2′%3″</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1 hPa</source>
        <translation>%1 hPa</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 字节</numerusform>
        </translation>
    </message>
    <message>
        <source>The root element is %1, not JPEG</source>
        <translation>根元素是 %1，不是 JPEG</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>找不到文件夹</translation>
    </message>
    <message>
        <source>No files found with search criteria specified.  Click &apos;Find Files&apos; button to try again.</source>
        <translation>没有找到符合搜索条件的文件。请单击“查找文件”按钮重试。</translation>
    </message>
    <message>
        <source>List of files found (%1)</source>
        <translation>已找到文件的列表（%1）</translation>
    </message>
    <message>
        <source>Checking file contents</source>
        <translation>检查文件内容</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not be checked. The first: %2</source>
        <translation>
            <numerusform>有 %1 个文件无法检查。第一个：%2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The search ended early, because %1 files could not be checked. The first: %2</source>
        <translation>
            <numerusform>搜索提前结束，因为有 %1 个文件无法检查。第一个：%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Open File %1</source>
        <translation>打开文件 %1</translation>
    </message>
    <message>
        <source>Read File %1</source>
        <translation>读取文件 %1</translation>
    </message>
    <message>
        <source>Create file %1</source>
        <translation>创建文件 %1</translation>
    </message>
    <message>
        <source>Write file %1</source>
        <translation>写入文件 %1</translation>
    </message>
    <message>
        <source>Save XML File %1</source>
        <translation>保存 XML 文件 %1</translation>
    </message>
    <message>
        <source>Internal XML document corrupt</source>
        <translation>内部 XML 文档已损坏</translation>
    </message>
    <message>
        <source>Transform XML</source>
        <translation>转换 XML</translation>
    </message>
    <message>
        <source>loadXML</source>
        <translation>加载 XML</translation>
    </message>
    <message>
        <source>Internal JpegXml document error</source>
        <translation>内部 JpegXml 文档错误</translation>
    </message>
    <message>
        <source>Invalid picture</source>
        <translation>无效的图像</translation>
    </message>
    <message>
        <source>Invalid thumbnail</source>
        <translation>无效的缩略图</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>打开 %1</translation>
    </message>
    <message>
        <source>No program was found that opens it</source>
        <translation>找不到可打开它的程序</translation>
    </message>
    <message>
        <source>The document has other frames or tables than the file, which would change the picture</source>
        <translation>文档中的帧或表与文件不同，这会改变图像</translation>
    </message>
</context>
<context>
    <name>NodeAddForm</name>
    <message>
        <source>Node Add</source>
        <translation>添加节点</translation>
    </message>
    <message>
        <source>Select the Node to add to the image</source>
        <translation>选择要添加到照片的节点</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>节点(&amp;N)</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>&amp;Add Node</source>
        <translation>添加节点(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>The property to add</source>
        <translation>要添加的属性</translation>
    </message>
    <message>
        <source>Adds the selected property to the photograph</source>
        <translation>将所选属性添加到照片</translation>
    </message>
    <message>
        <source>Closes the dialog and adds nothing</source>
        <translation>关闭对话框，不添加任何内容</translation>
    </message>
</context>
<context>
    <name>PrivateForm</name>
    <message>
        <source>What Does It Tell?</source>
        <translation>照片透露了什么？</translation>
    </message>
    <message>
        <source>This is what the &amp;photograph tells of people and places. Select what you want to delete; it is gone from the file when you save.</source>
        <translation>以下是照片透露的有关人物和地点的信息(&amp;P)。请选择要删除的内容；保存后，它们将从文件中消失。</translation>
    </message>
    <message>
        <source>What the photograph tells</source>
        <translation>照片透露的信息</translation>
    </message>
    <message>
        <source>What</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>字节数</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Delete Selected</source>
        <translation>删除所选(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>The space bar ticks what is to be deleted</source>
        <translation>用空格键勾选要删除的内容</translation>
    </message>
    <message>
        <source>Ticks everything that can be deleted</source>
        <translation>勾选所有可删除的内容</translation>
    </message>
    <message>
        <source>Deletes what is ticked; it is gone from the file when you save</source>
        <translation>删除已勾选的内容；保存后才会从文件中消失</translation>
    </message>
    <message>
        <source>Closes the dialog and deletes nothing</source>
        <translation>关闭对话框，不删除任何内容</translation>
    </message>
</context>
<context>
    <name>ProgressForm</name>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Files done</source>
        <translation>已处理的文件</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Stops before the next file; what is done stays done</source>
        <translation>在下一个文件之前停止；已完成的保持不变</translation>
    </message>
</context>
<context>
    <name>Punctuation</name>
    <message>
        <source>%1.</source>
        <comment>a sentence and its full stop</comment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>en</source>
        <extracomment>The code of the language that you translate into, such as &quot;de&quot; or &quot;zh-CN&quot;</extracomment>
        <translation>zh-CN</translation>
    </message>
    <message numerus="yes">
        <source>%n photographs</source>
        <translation>
            <numerusform>%n 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>Shots</source>
        <extracomment>The photographs that were taken: the title of a table</extracomment>
        <translation>拍摄记录</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>镜头</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Exposure time</extracomment>
        <translation>曝光时间</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>光圈</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>焦距</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>地点</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Sensitivity</source>
        <translation>感光度</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月份</translation>
    </message>
    <message>
        <source>not known</source>
        <extracomment>A camera, a focal length, a sensitivity or a month</extracomment>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>SlideForm</name>
    <message>
        <source>Slide Show</source>
        <translation>幻灯片放映</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
</context>
<context>
    <name>SlideShowOptionForm</name>
    <message>
        <source>Slide Show</source>
        <translation>幻灯片放映</translation>
    </message>
    <message>
        <source>Full screen?</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Show Slide show full screen or in a window?</source>
        <translation>全屏放映（不勾选则在窗口中放映）</translation>
    </message>
    <message>
        <source>Resize large images?</source>
        <translation>缩小大幅照片</translation>
    </message>
    <message>
        <source>Resize large images to fit the slide window?</source>
        <translation>缩小大幅照片，使其适合放映窗口</translation>
    </message>
    <message>
        <source>Show Details?</source>
        <translation>显示详细信息</translation>
    </message>
    <message>
        <source>Show details fo each file as it displays</source>
        <translation>放映时显示每个文件的详细信息</translation>
    </message>
    <message>
        <source>Seconds/Slide</source>
        <translation>每张秒数</translation>
    </message>
    <message>
        <source>Number of seconds to show each  image. Enter 0 (zero) for manual control.</source>
        <translation>每张照片的显示秒数。输入 0（零）则手动切换。</translation>
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
        <source>Starts the slide show</source>
        <translation>开始幻灯片放映</translation>
    </message>
    <message>
        <source>Closes the dialog and starts no show</source>
        <translation>关闭对话框，不开始放映</translation>
    </message>
</context>
<context>
    <name>ValueLine</name>
    <message>
        <source>Only whole numbers from 0 to 65535 can be written.</source>
        <translation>只能写入 0 到 65535 之间的整数。</translation>
    </message>
    <message>
        <source>Only whole numbers from 0 to 4294967295 can be written.</source>
        <translation>只能写入 0 到 4294967295 之间的整数。</translation>
    </message>
    <message>
        <source>Only numbers such as 2.5 can be written.</source>
        <translation>只能写入 2.5 这样的数字。</translation>
    </message>
    <message>
        <source>Only whole numbers from -32768 to 32767 can be written.</source>
        <translation>只能写入 -32768 到 32767 之间的整数。</translation>
    </message>
    <message>
        <source>Only whole numbers from -2147483648 to 2147483647 can be written.</source>
        <translation>只能写入 -2147483648 到 2147483647 之间的整数。</translation>
    </message>
    <message>
        <source>Only fractions such as 1/125, up to 4294967295, can be written.</source>
        <translation>只能写入 1/125 这样的分数，分子和分母均不超过 4294967295。</translation>
    </message>
    <message>
        <source>Only fractions such as -1/3, up to 2147483647, can be written.</source>
        <translation>只能写入 -1/3 这样的分数，分子和分母均不超过 2147483647。</translation>
    </message>
    <message>
        <source>Cannot be written: %1</source>
        <translation>无法写入：%1</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Shows and edits the metadata of JPEG files.</source>
        <translation>显示和编辑 JPEG 文件的元数据。</translation>
    </message>
    <message>
        <source>Photographs to list, and folders of them</source>
        <translation>要列出的照片，以及存放照片的文件夹</translation>
    </message>
</context>
<context>
    <name>ovisto::AboutForm</name>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Made with %1.</source>
        <translation>使用 %1 构建。</translation>
    </message>
    <message>
        <source>System: %1</source>
        <translation>系统：%1</translation>
    </message>
    <message>
        <source>Kernel: %1 %2</source>
        <translation>内核：%1 %2</translation>
    </message>
    <message>
        <source>Computer: %1</source>
        <translation>计算机：%1</translation>
    </message>
    <message numerus="yes">
        <source>Processor: %1, %Ln cores</source>
        <translation>
            <numerusform>处理器：%1，%Ln 个核心</numerusform>
        </translation>
    </message>
    <message>
        <source>Window system: %1</source>
        <translation>窗口系统：%1</translation>
    </message>
    <message>
        <source>Screen: %1 x %2</source>
        <translation>屏幕：%1 × %2</translation>
    </message>
</context>
<context>
    <name>ovisto::AwakeScreen</name>
    <message>
        <source>A slide show is running</source>
        <translation>正在放映幻灯片</translation>
    </message>
</context>
<context>
    <name>ovisto::BatchForm</name>
    <message numerus="yes">
        <source>The list has %Ln files.</source>
        <translation>
            <numerusform>列表中有 %Ln 个文件。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ovisto::BatchResults</name>
    <message>
        <source>failed: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>not reached</source>
        <translation>未处理</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>未更改</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
</context>
<context>
    <name>ovisto::ControlForm</name>
    <message>
        <source>Goes with &quot;Keep Untouched Data?&quot;: what is written anew is read in the basic way.</source>
        <translation>须与“保留未改动的数据”一起使用：重新写入的数据以基本方式读取。</translation>
    </message>
</context>
<context>
    <name>ovisto::Editor</name>
    <message>
        <source>Metadata saved as %1</source>
        <translation>元数据已保存为 %1</translation>
    </message>
    <message>
        <source>All previous edits have been ignored, except for<byte value="xd"/>
nodes removed according to the Options menu.</source>
        <translation>之前的所有编辑均已忽略，<byte value="xd"/>
但按照“选项”菜单移除的节点除外。</translation>
    </message>
    <message>
        <source>Everything has to be read first. Switch on &quot;Keep Untouched Data?&quot; and<byte value="xd"/>
&quot;Read Everything?&quot; in the Options menu, and open the file again.</source>
        <translation>需要先读取全部内容。请在“选项”菜单中打开“保留未改动的数据”<byte value="xd"/>
和“读取全部内容”，然后重新打开文件。</translation>
    </message>
    <message>
        <source>Save Changes to file %1?</source>
        <translation>是否将更改保存到文件 %1？</translation>
    </message>
    <message>
        <source>Another program changed the file %1 after it was opened here.<byte value="xd"/>
<byte value="xd"/>
Save Over It: the file gets all values as they are shown here.<byte value="xd"/>
Read It Again: what you changed here is given up, and the file is shown as it is now.</source>
        <translation>文件 %1 在此处打开后，已被另一个程序更改。<byte value="xd"/>
<byte value="xd"/>
覆盖保存：将此处显示的所有值写入文件。<byte value="xd"/>
重新读取：放弃您在此处所做的更改，显示文件现在的内容。</translation>
    </message>
    <message>
        <source>&amp;Save Over It</source>
        <translation>覆盖保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Read It Again</source>
        <translation>重新读取(&amp;R)</translation>
    </message>
    <message>
        <source>%1 saved: %2</source>
        <translation>%1 已保存：%2</translation>
    </message>
    <message>
        <source>Lost, as &quot;Keep Untouched Data?&quot; is off: %1</source>
        <translation>由于“保留未改动的数据”已关闭，有内容丢失：%1</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
    <message>
        <source>Discard the changes to file %1 and read it again?</source>
        <translation>放弃对文件 %1 的更改并重新读取？</translation>
    </message>
</context>
<context>
    <name>ovisto::FileListPane</name>
    <message>
        <source>The folder %1 is not there. Nothing was removed from the list.<byte value="xd"/>
Check that the disk or card is connected, and click the photograph again.</source>
        <translation>文件夹 %1 不存在。未从列表中移除任何内容。<byte value="xd"/>
请检查磁盘或存储卡是否已连接，然后再次单击该照片。</translation>
    </message>
</context>
<context>
    <name>ovisto::GapMark</name>
    <message>
        <source>Arrow keys move the gap, F8 goes to the next one, Esc goes back</source>
        <translation>方向键移动分隔线，F8 转到下一条，Esc 返回</translation>
    </message>
</context>
<context>
    <name>ovisto::KeywordPane</name>
    <message>
        <source>*.TXT (*.TXT *.txt);;All Files (*)</source>
        <translation>*.TXT (*.TXT *.txt);;所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>ovisto::LeftOutLine</name>
    <message>
        <source>Saving leaves out: %1</source>
        <translation>保存时不保留：%1</translation>
    </message>
    <message>
        <source>Enter opens the menu at the option</source>
        <translation>按回车键打开菜单并定位到该选项</translation>
    </message>
</context>
<context>
    <name>ovisto::ListActions</name>
    <message numerus="yes">
        <source>Lost something in %L1 of %Ln files, as &quot;Keep Untouched Data?&quot; is off. The originals are kept as NAME.original.</source>
        <translation>
            <numerusform>由于“保留未改动的数据”已关闭，%Ln 个文件中有 %L1 个丢失了部分内容。原始文件保留为“文件名.original”。</numerusform>
        </translation>
    </message>
    <message>
        <source>Open Report</source>
        <translation>打开报告样式表</translation>
    </message>
    <message>
        <source>XSL (*.xsl *.XSL);;All Files (*.*) (*)</source>
        <translation>XSL (*.xsl *.XSL);;所有文件 (*.*) (*)</translation>
    </message>
</context>
<context>
    <name>ovisto::PictureBox</name>
    <message>
        <source>This file cannot be shown as a picture.</source>
        <translation>此文件无法作为图像显示。</translation>
    </message>
</context>
<context>
    <name>ovisto::PrivateForm</name>
    <message>
        <source>%1 – %2</source>
        <comment>kind, what was found</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Ovisto cannot look into it.</source>
        <translation>Ovisto 无法查看其内容。</translation>
    </message>
</context>
<context>
    <name>ovisto::PropertyPane</name>
    <message>
        <source>No properties to show.</source>
        <translation>没有可显示的属性。</translation>
    </message>
    <message>
        <source>Unexpected error - Node &apos;%1&apos; not found. Please reload the file.</source>
        <translation>意外错误：找不到节点“%1”。请重新加载文件。</translation>
    </message>
    <message>
        <source>Click on a node in the property NodeTree to select a value first.</source>
        <translation>请先在属性树中单击一个节点以选择值。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Delete %1 and all that belongs to it?</source>
        <translation>删除 %1 及其包含的所有内容？</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>删除 %1？</translation>
    </message>
</context>
<context>
    <name>ovisto::PropertySheet</name>
    <message>
        <source>Properties of %1</source>
        <translation>%1 的属性</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>文件夹：</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>类型：</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>大小：</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 字节</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed:</source>
        <translation>修改时间：</translation>
    </message>
    <message>
        <source>Last read:</source>
        <translation>访问时间：</translation>
    </message>
    <message>
        <source>Owner:</source>
        <translation>所有者：</translation>
    </message>
    <message>
        <source>Access:</source>
        <translation>权限：</translation>
    </message>
    <message>
        <source>Can be read and changed</source>
        <translation>可读取和更改</translation>
    </message>
    <message>
        <source>Can be read only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Closes this window</source>
        <translation>关闭此窗口</translation>
    </message>
</context>
<context>
    <name>ovisto::RecentMenu</name>
    <message>
        <source>No folder was searched yet</source>
        <translation>尚未搜索任何文件夹</translation>
    </message>
    <message>
        <source>&amp;Clear This List</source>
        <translation>清空此列表(&amp;C)</translation>
    </message>
</context>
<context>
    <name>ovisto::SlideForm</name>
    <message>
        <source>Press ESC or click the image to exit show,<byte value="xd"/>
left/right arrow to skip slides,<byte value="xd"/>
space to pause/unpause.</source>
        <translation>按 Esc 键或单击照片退出放映，<byte value="xd"/>
按左/右方向键切换照片，<byte value="xd"/>
按空格键暂停/继续。</translation>
    </message>
    <message>
        <source>The picture ends early: part of the file is missing.</source>
        <translation>图像不完整：文件缺少一部分。</translation>
    </message>
    <message>
        <source>%1 (paused)</source>
        <translation>%1（已暂停）</translation>
    </message>
    <message>
        <source>Slide Show</source>
        <translation>幻灯片放映</translation>
    </message>
</context>
</TS>
