<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Fields</name>
    <message>
        <source>IFD0:Make</source>
        <translation>Make</translation>
    </message>
    <message>
        <source>IFD0:Model</source>
        <translation>Camera Model Name</translation>
    </message>
    <message>
        <source>ExifIFD:SerialNumber</source>
        <translation>Serial Number</translation>
    </message>
    <message>
        <source>ExifIFD:OwnerName</source>
        <translation>Owner Name</translation>
    </message>
    <message>
        <source>ExifIFD:CameraFirmware</source>
        <translation>Camera Firmware</translation>
    </message>
    <message>
        <source>IFD0:Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>IFD0:HostComputer</source>
        <translation>Host Computer</translation>
    </message>
    <message>
        <source>IFD0:ProcessingSoftware</source>
        <translation>Processing Software</translation>
    </message>
    <message>
        <source>ExifIFD:ImageUniqueID</source>
        <translation>Image Unique ID</translation>
    </message>
    <message>
        <source>ExifIFD:ImageNumber</source>
        <translation>Image Number</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureTime</source>
        <translation>Exposure Time</translation>
    </message>
    <message>
        <source>ExifIFD:FNumber</source>
        <translation>F Number</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureProgram</source>
        <translation>Exposure Program</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureProgram:0</source>
        <translation>Not Defined</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureProgram:1</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureProgram:2</source>
        <translation>Program AE</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureProgram:3</source>
        <translation>Aperture-priority AE</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureProgram:4</source>
        <translation>Shutter speed priority AE</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureProgram:5</source>
        <translation>Creative (Slow speed)</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureProgram:6</source>
        <translation>Action (High speed)</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureProgram:7</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureProgram:8</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureProgram:9</source>
        <translation>Bulb</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureMode</source>
        <translation>Exposure Mode</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureMode:0</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureMode:1</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureMode:2</source>
        <translation>Auto bracket</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureCompensation</source>
        <translation>Exposure Compensation</translation>
    </message>
    <message>
        <source>ExifIFD:ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>ExifIFD:SensitivityType</source>
        <translation>Sensitivity Type</translation>
    </message>
    <message>
        <source>ExifIFD:SensitivityType:0</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>ExifIFD:SensitivityType:1</source>
        <translation>Standard Output Sensitivity</translation>
    </message>
    <message>
        <source>ExifIFD:SensitivityType:2</source>
        <translation>Recommended Exposure Index</translation>
    </message>
    <message>
        <source>ExifIFD:SensitivityType:3</source>
        <translation>ISO Speed</translation>
    </message>
    <message>
        <source>ExifIFD:SensitivityType:4</source>
        <translation>Standard Output Sensitivity and Recommended Exposure Index</translation>
    </message>
    <message>
        <source>ExifIFD:SensitivityType:5</source>
        <translation>Standard Output Sensitivity and ISO Speed</translation>
    </message>
    <message>
        <source>ExifIFD:SensitivityType:6</source>
        <translation>Recommended Exposure Index and ISO Speed</translation>
    </message>
    <message>
        <source>ExifIFD:SensitivityType:7</source>
        <translation>Standard Output Sensitivity, Recommended Exposure Index and ISO Speed</translation>
    </message>
    <message>
        <source>ExifIFD:StandardOutputSensitivity</source>
        <translation>Standard Output Sensitivity</translation>
    </message>
    <message>
        <source>ExifIFD:RecommendedExposureIndex</source>
        <translation>Recommended Exposure Index</translation>
    </message>
    <message>
        <source>ExifIFD:ISOSpeed</source>
        <translation>ISO Speed</translation>
    </message>
    <message>
        <source>ExifIFD:ExposureIndex</source>
        <translation>Exposure Index</translation>
    </message>
    <message>
        <source>ExifIFD:ShutterSpeedValue</source>
        <translation>Shutter Speed Value</translation>
    </message>
    <message>
        <source>ExifIFD:ApertureValue</source>
        <translation>Aperture Value</translation>
    </message>
    <message>
        <source>ExifIFD:BrightnessValue</source>
        <translation>Brightness Value</translation>
    </message>
    <message>
        <source>ExifIFD:MaxApertureValue</source>
        <translation>Max Aperture Value</translation>
    </message>
    <message>
        <source>ExifIFD:MeteringMode</source>
        <translation>Metering Mode</translation>
    </message>
    <message>
        <source>ExifIFD:MeteringMode:0</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>ExifIFD:MeteringMode:1</source>
        <translation>Average</translation>
    </message>
    <message>
        <source>ExifIFD:MeteringMode:2</source>
        <translation>Center-weighted average</translation>
    </message>
    <message>
        <source>ExifIFD:MeteringMode:3</source>
        <translation>Spot</translation>
    </message>
    <message>
        <source>ExifIFD:MeteringMode:4</source>
        <translation>Multi-spot</translation>
    </message>
    <message>
        <source>ExifIFD:MeteringMode:5</source>
        <translation>Multi-segment</translation>
    </message>
    <message>
        <source>ExifIFD:MeteringMode:6</source>
        <translation>Partial</translation>
    </message>
    <message>
        <source>ExifIFD:MeteringMode:255</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource</source>
        <translation>Light Source</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:0</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:1</source>
        <translation>Daylight</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:2</source>
        <translation>Fluorescent</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:3</source>
        <translation>Tungsten (Incandescent)</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:4</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:9</source>
        <translation>Fine Weather</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:10</source>
        <translation>Cloudy</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:11</source>
        <translation>Shade</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:12</source>
        <translation>Daylight Fluorescent</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:13</source>
        <translation>Day White Fluorescent</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:14</source>
        <translation>Cool White Fluorescent</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:15</source>
        <translation>White Fluorescent</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:16</source>
        <translation>Warm White Fluorescent</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:17</source>
        <translation>Standard Light A</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:18</source>
        <translation>Standard Light B</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:19</source>
        <translation>Standard Light C</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:20</source>
        <translation>D55</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:21</source>
        <translation>D65</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:22</source>
        <translation>D75</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:23</source>
        <translation>D50</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:24</source>
        <translation>ISO Studio Tungsten</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:25</source>
        <translation>Daylight</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:26</source>
        <translation>Day White</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:27</source>
        <translation>Cool White</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:28</source>
        <translation>White</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:29</source>
        <translation>Warm White</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:30</source>
        <translation>Daylight LED</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:31</source>
        <translation>Day White LED</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:32</source>
        <translation>Cool White LED</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:33</source>
        <translation>White LED</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:34</source>
        <translation>Warm White LED</translation>
    </message>
    <message>
        <source>ExifIFD:LightSource:255</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>ExifIFD:Flash</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:0</source>
        <translation>No Flash</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:1</source>
        <translation>Fired</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:5</source>
        <translation>Fired, Return not detected</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:7</source>
        <translation>Fired, Return detected</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:8</source>
        <translation>On, Did not fire</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:9</source>
        <translation>On, Fired</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:13</source>
        <translation>On, Return not detected</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:15</source>
        <translation>On, Return detected</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:16</source>
        <translation>Off, Did not fire</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:20</source>
        <translation>Off, Did not fire, Return not detected</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:24</source>
        <translation>Auto, Did not fire</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:25</source>
        <translation>Auto, Fired</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:29</source>
        <translation>Auto, Fired, Return not detected</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:31</source>
        <translation>Auto, Fired, Return detected</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:32</source>
        <translation>No flash function</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:48</source>
        <translation>Off, No flash function</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:65</source>
        <translation>Fired, Red-eye reduction</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:69</source>
        <translation>Fired, Red-eye reduction, Return not detected</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:71</source>
        <translation>Fired, Red-eye reduction, Return detected</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:73</source>
        <translation>On, Red-eye reduction</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:77</source>
        <translation>On, Red-eye reduction, Return not detected</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:79</source>
        <translation>On, Red-eye reduction, Return detected</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:80</source>
        <translation>Off, Red-eye reduction</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:88</source>
        <translation>Auto, Did not fire, Red-eye reduction</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:89</source>
        <translation>Auto, Fired, Red-eye reduction</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:93</source>
        <translation>Auto, Fired, Red-eye reduction, Return not detected</translation>
    </message>
    <message>
        <source>ExifIFD:Flash:95</source>
        <translation>Auto, Fired, Red-eye reduction, Return detected</translation>
    </message>
    <message>
        <source>ExifIFD:FlashEnergy</source>
        <translation>Flash Energy</translation>
    </message>
    <message>
        <source>ExifIFD:WhiteBalance</source>
        <translation>White Balance</translation>
    </message>
    <message>
        <source>ExifIFD:WhiteBalance:0</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>ExifIFD:WhiteBalance:1</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>ExifIFD:GainControl</source>
        <translation>Gain Control</translation>
    </message>
    <message>
        <source>ExifIFD:GainControl:0</source>
        <translation>None</translation>
    </message>
    <message>
        <source>ExifIFD:GainControl:1</source>
        <translation>Low gain up</translation>
    </message>
    <message>
        <source>ExifIFD:GainControl:2</source>
        <translation>High gain up</translation>
    </message>
    <message>
        <source>ExifIFD:GainControl:3</source>
        <translation>Low gain down</translation>
    </message>
    <message>
        <source>ExifIFD:GainControl:4</source>
        <translation>High gain down</translation>
    </message>
    <message>
        <source>ExifIFD:SceneCaptureType</source>
        <translation>Scene Capture Type</translation>
    </message>
    <message>
        <source>ExifIFD:SceneCaptureType:0</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>ExifIFD:SceneCaptureType:1</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>ExifIFD:SceneCaptureType:2</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>ExifIFD:SceneCaptureType:3</source>
        <translation>Night</translation>
    </message>
    <message>
        <source>ExifIFD:SceneCaptureType:4</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>ExifIFD:CustomRendered</source>
        <translation>Custom Rendered</translation>
    </message>
    <message>
        <source>ExifIFD:CustomRendered:0</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>ExifIFD:CustomRendered:1</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>ExifIFD:CustomRendered:2</source>
        <translation>HDR (no original saved)</translation>
    </message>
    <message>
        <source>ExifIFD:CustomRendered:3</source>
        <translation>HDR (original saved)</translation>
    </message>
    <message>
        <source>ExifIFD:CustomRendered:4</source>
        <translation>Original (for HDR)</translation>
    </message>
    <message>
        <source>ExifIFD:CustomRendered:6</source>
        <translation>Panorama</translation>
    </message>
    <message>
        <source>ExifIFD:CustomRendered:7</source>
        <translation>Portrait HDR</translation>
    </message>
    <message>
        <source>ExifIFD:CustomRendered:8</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>ExifIFD:SelfTimerMode</source>
        <translation>Self Timer Mode</translation>
    </message>
    <message>
        <source>ExifIFD:CompositeImage</source>
        <translation>Composite Image</translation>
    </message>
    <message>
        <source>ExifIFD:CompositeImage:0</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>ExifIFD:CompositeImage:1</source>
        <translation>Not a Composite Image</translation>
    </message>
    <message>
        <source>ExifIFD:CompositeImage:2</source>
        <translation>General Composite Image</translation>
    </message>
    <message>
        <source>ExifIFD:CompositeImage:3</source>
        <translation>Composite Image Captured While Shooting</translation>
    </message>
    <message>
        <source>ExifIFD:CompositeImageCount</source>
        <translation>Composite Image Count</translation>
    </message>
    <message>
        <source>ExifIFD:FocalLength</source>
        <translation>Focal Length</translation>
    </message>
    <message>
        <source>ExifIFD:FocalLengthIn35mmFormat</source>
        <translation>Focal Length In 35mm Format</translation>
    </message>
    <message>
        <source>ExifIFD:DigitalZoomRatio</source>
        <translation>Digital Zoom Ratio</translation>
    </message>
    <message>
        <source>ExifIFD:SubjectDistance</source>
        <translation>Subject Distance</translation>
    </message>
    <message>
        <source>ExifIFD:SubjectDistanceRange</source>
        <translation>Subject Distance Range</translation>
    </message>
    <message>
        <source>ExifIFD:SubjectDistanceRange:0</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>ExifIFD:SubjectDistanceRange:1</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>ExifIFD:SubjectDistanceRange:2</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>ExifIFD:SubjectDistanceRange:3</source>
        <translation>Distant</translation>
    </message>
    <message>
        <source>ExifIFD:LensInfo</source>
        <translation>Lens Info</translation>
    </message>
    <message>
        <source>ExifIFD:LensMake</source>
        <translation>Lens Make</translation>
    </message>
    <message>
        <source>ExifIFD:LensModel</source>
        <translation>Lens Model</translation>
    </message>
    <message>
        <source>ExifIFD:LensSerialNumber</source>
        <translation>Lens Serial Number</translation>
    </message>
    <message>
        <source>ExifIFD:Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>ExifIFD:Contrast:0</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>ExifIFD:Contrast:1</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>ExifIFD:Contrast:2</source>
        <translation>High</translation>
    </message>
    <message>
        <source>ExifIFD:Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>ExifIFD:Saturation:0</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>ExifIFD:Saturation:1</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>ExifIFD:Saturation:2</source>
        <translation>High</translation>
    </message>
    <message>
        <source>ExifIFD:Sharpness</source>
        <translation>Sharpness</translation>
    </message>
    <message>
        <source>ExifIFD:Sharpness:0</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>ExifIFD:Sharpness:1</source>
        <translation>Soft</translation>
    </message>
    <message>
        <source>ExifIFD:Sharpness:2</source>
        <translation>Hard</translation>
    </message>
    <message>
        <source>ExifIFD:ColorSpace</source>
        <translation>Color Space</translation>
    </message>
    <message>
        <source>ExifIFD:ColorSpace:1</source>
        <translation>sRGB</translation>
    </message>
    <message>
        <source>ExifIFD:ColorSpace:2</source>
        <translation>Adobe RGB</translation>
    </message>
    <message>
        <source>ExifIFD:ColorSpace:65533</source>
        <translation>Wide Gamut RGB</translation>
    </message>
    <message>
        <source>ExifIFD:ColorSpace:65534</source>
        <translation>ICC Profile</translation>
    </message>
    <message>
        <source>ExifIFD:ColorSpace:65535</source>
        <translation>Uncalibrated</translation>
    </message>
    <message>
        <source>ExifIFD:SensingMethod</source>
        <translation>Sensing Method</translation>
    </message>
    <message>
        <source>ExifIFD:SensingMethod:1</source>
        <translation>Monochrome area</translation>
    </message>
    <message>
        <source>ExifIFD:SensingMethod:2</source>
        <translation>One-chip color area</translation>
    </message>
    <message>
        <source>ExifIFD:SensingMethod:3</source>
        <translation>Two-chip color area</translation>
    </message>
    <message>
        <source>ExifIFD:SensingMethod:4</source>
        <translation>Three-chip color area</translation>
    </message>
    <message>
        <source>ExifIFD:SensingMethod:5</source>
        <translation>Color sequential area</translation>
    </message>
    <message>
        <source>ExifIFD:SensingMethod:6</source>
        <translation>Monochrome linear</translation>
    </message>
    <message>
        <source>ExifIFD:SensingMethod:7</source>
        <translation>Trilinear</translation>
    </message>
    <message>
        <source>ExifIFD:SensingMethod:8</source>
        <translation>Color sequential linear</translation>
    </message>
    <message>
        <source>ExifIFD:FileSource</source>
        <translation>File Source</translation>
    </message>
    <message>
        <source>ExifIFD:FileSource:1</source>
        <translation>Film Scanner</translation>
    </message>
    <message>
        <source>ExifIFD:FileSource:2</source>
        <translation>Reflection Print Scanner</translation>
    </message>
    <message>
        <source>ExifIFD:FileSource:3</source>
        <translation>Digital Camera</translation>
    </message>
    <message>
        <source>ExifIFD:SceneType</source>
        <translation>Scene Type</translation>
    </message>
    <message>
        <source>ExifIFD:SceneType:1</source>
        <translation>Directly photographed</translation>
    </message>
    <message>
        <source>ExifIFD:ComponentsConfiguration</source>
        <translation>Components Configuration</translation>
    </message>
    <message>
        <source>ExifIFD:CompressedBitsPerPixel</source>
        <translation>Compressed Bits Per Pixel</translation>
    </message>
    <message>
        <source>ExifIFD:Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>ExifIFD:RAWDevelopingSoftware</source>
        <translation>RAW Developing Software</translation>
    </message>
    <message>
        <source>ExifIFD:ImageEditingSoftware</source>
        <translation>Image Editing Software</translation>
    </message>
    <message>
        <source>ExifIFD:MetadataEditingSoftware</source>
        <translation>Metadata Editing Software</translation>
    </message>
    <message>
        <source>IFD0:Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>IFD0:Orientation:1</source>
        <translation>Horizontal (normal)</translation>
    </message>
    <message>
        <source>IFD0:Orientation:2</source>
        <translation>Mirror horizontal</translation>
    </message>
    <message>
        <source>IFD0:Orientation:3</source>
        <translation>Rotate 180</translation>
    </message>
    <message>
        <source>IFD0:Orientation:4</source>
        <translation>Mirror vertical</translation>
    </message>
    <message>
        <source>IFD0:Orientation:5</source>
        <translation>Mirror horizontal and rotate 270 CW</translation>
    </message>
    <message>
        <source>IFD0:Orientation:6</source>
        <translation>Rotate 90 CW</translation>
    </message>
    <message>
        <source>IFD0:Orientation:7</source>
        <translation>Mirror horizontal and rotate 90 CW</translation>
    </message>
    <message>
        <source>IFD0:Orientation:8</source>
        <translation>Rotate 270 CW</translation>
    </message>
    <message>
        <source>IFD0:XResolution</source>
        <translation>X Resolution</translation>
    </message>
    <message>
        <source>IFD0:YResolution</source>
        <translation>Y Resolution</translation>
    </message>
    <message>
        <source>IFD0:ResolutionUnit</source>
        <translation>Resolution Unit</translation>
    </message>
    <message>
        <source>IFD0:ResolutionUnit:1</source>
        <translation>None</translation>
    </message>
    <message>
        <source>IFD0:ResolutionUnit:2</source>
        <translation>inches</translation>
    </message>
    <message>
        <source>IFD0:ResolutionUnit:3</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>IFD0:YCbCrPositioning</source>
        <translation>Y Cb Cr Positioning</translation>
    </message>
    <message>
        <source>IFD0:YCbCrPositioning:1</source>
        <translation>Centered</translation>
    </message>
    <message>
        <source>IFD0:YCbCrPositioning:2</source>
        <translation>Co-sited</translation>
    </message>
    <message>
        <source>ExifIFD:ExifImageWidth</source>
        <translation>Exif Image Width</translation>
    </message>
    <message>
        <source>ExifIFD:ExifImageHeight</source>
        <translation>Exif Image Height</translation>
    </message>
    <message>
        <source>ExifIFD:FocalPlaneXResolution</source>
        <translation>Focal Plane X Resolution</translation>
    </message>
    <message>
        <source>ExifIFD:FocalPlaneYResolution</source>
        <translation>Focal Plane Y Resolution</translation>
    </message>
    <message>
        <source>ExifIFD:FocalPlaneResolutionUnit</source>
        <translation>Focal Plane Resolution Unit</translation>
    </message>
    <message>
        <source>ExifIFD:FocalPlaneResolutionUnit:1</source>
        <translation>None</translation>
    </message>
    <message>
        <source>ExifIFD:FocalPlaneResolutionUnit:2</source>
        <translation>inches</translation>
    </message>
    <message>
        <source>ExifIFD:FocalPlaneResolutionUnit:3</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>ExifIFD:FocalPlaneResolutionUnit:4</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>ExifIFD:FocalPlaneResolutionUnit:5</source>
        <translation>um</translation>
    </message>
    <message>
        <source>ExifIFD:ExifVersion</source>
        <translation>Exif Version</translation>
    </message>
    <message>
        <source>ExifIFD:FlashpixVersion</source>
        <translation>Flashpix Version</translation>
    </message>
    <message>
        <source>IFD0:Rating</source>
        <translation>Rating</translation>
    </message>
    <message>
        <source>IFD0:RatingPercent</source>
        <translation>Rating Percent</translation>
    </message>
    <message>
        <source>ExifIFD:AmbientTemperature</source>
        <translation>Ambient Temperature</translation>
    </message>
    <message>
        <source>ExifIFD:Humidity</source>
        <translation>Humidity</translation>
    </message>
    <message>
        <source>ExifIFD:Pressure</source>
        <translation>Pressure</translation>
    </message>
    <message>
        <source>ExifIFD:WaterDepth</source>
        <translation>Water Depth</translation>
    </message>
    <message>
        <source>ExifIFD:Acceleration</source>
        <translation>Acceleration</translation>
    </message>
    <message>
        <source>ExifIFD:CameraElevationAngle</source>
        <translation>Camera Elevation Angle</translation>
    </message>
    <message>
        <source>ExifIFD:DateTimeOriginal</source>
        <translation>Date/Time Original</translation>
    </message>
    <message>
        <source>ExifIFD:SubSecTimeOriginal</source>
        <translation>Sub Sec Time Original</translation>
    </message>
    <message>
        <source>ExifIFD:OffsetTimeOriginal</source>
        <translation>Offset Time Original</translation>
    </message>
    <message>
        <source>ExifIFD:CreateDate</source>
        <translation>Create Date</translation>
    </message>
    <message>
        <source>ExifIFD:SubSecTimeDigitized</source>
        <translation>Sub Sec Time Digitized</translation>
    </message>
    <message>
        <source>ExifIFD:OffsetTimeDigitized</source>
        <translation>Offset Time Digitized</translation>
    </message>
    <message>
        <source>IFD0:ModifyDate</source>
        <translation>Modify Date</translation>
    </message>
    <message>
        <source>ExifIFD:SubSecTime</source>
        <translation>Sub Sec Time</translation>
    </message>
    <message>
        <source>ExifIFD:OffsetTime</source>
        <translation>Offset Time</translation>
    </message>
    <message>
        <source>ExifIFD:TimeZoneOffset</source>
        <translation>Time Zone Offset</translation>
    </message>
    <message>
        <source>XMP-xmp:CreateDate</source>
        <translation>Create Date</translation>
    </message>
    <message>
        <source>XMP-xmp:ModifyDate</source>
        <translation>Modify Date</translation>
    </message>
    <message>
        <source>XMP-xmp:MetadataDate</source>
        <translation>Metadata Date</translation>
    </message>
    <message>
        <source>XMP-photoshop:DateCreated</source>
        <translation>Date Created</translation>
    </message>
    <message>
        <source>XMP-exif:DateTimeOriginal</source>
        <translation>Date/Time Original</translation>
    </message>
    <message>
        <source>XMP-exif:DateTimeDigitized</source>
        <translation>Date/Time Digitized</translation>
    </message>
    <message>
        <source>IPTC:DateCreated</source>
        <translation>Date Created</translation>
    </message>
    <message>
        <source>IPTC:TimeCreated</source>
        <translation>Time Created</translation>
    </message>
    <message>
        <source>IPTC:DigitalCreationDate</source>
        <translation>Digital Creation Date</translation>
    </message>
    <message>
        <source>IPTC:DigitalCreationTime</source>
        <translation>Digital Creation Time</translation>
    </message>
    <message>
        <source>IPTC:ReleaseDate</source>
        <translation>Release Date</translation>
    </message>
    <message>
        <source>IPTC:ReleaseTime</source>
        <translation>Release Time</translation>
    </message>
    <message>
        <source>IPTC:ExpirationDate</source>
        <translation>Expiration Date</translation>
    </message>
    <message>
        <source>IPTC:ExpirationTime</source>
        <translation>Expiration Time</translation>
    </message>
    <message>
        <source>GPS:GPSLatitudeRef</source>
        <translation>GPS Latitude Ref</translation>
    </message>
    <message>
        <source>GPS:GPSLatitudeRef:N</source>
        <translation>North</translation>
    </message>
    <message>
        <source>GPS:GPSLatitudeRef:S</source>
        <translation>South</translation>
    </message>
    <message>
        <source>GPS:GPSLatitude</source>
        <translation>GPS Latitude</translation>
    </message>
    <message>
        <source>GPS:GPSLongitudeRef</source>
        <translation>GPS Longitude Ref</translation>
    </message>
    <message>
        <source>GPS:GPSLongitudeRef:E</source>
        <translation>East</translation>
    </message>
    <message>
        <source>GPS:GPSLongitudeRef:W</source>
        <translation>West</translation>
    </message>
    <message>
        <source>GPS:GPSLongitude</source>
        <translation>GPS Longitude</translation>
    </message>
    <message>
        <source>GPS:GPSAltitudeRef</source>
        <translation>GPS Altitude Ref</translation>
    </message>
    <message>
        <source>GPS:GPSAltitudeRef:0</source>
        <translation>Above Sea Level</translation>
    </message>
    <message>
        <source>GPS:GPSAltitudeRef:1</source>
        <translation>Below Sea Level</translation>
    </message>
    <message>
        <source>GPS:GPSAltitudeRef:2</source>
        <translation>Positive Sea Level (sea-level ref)</translation>
    </message>
    <message>
        <source>GPS:GPSAltitudeRef:3</source>
        <translation>Negative Sea Level (sea-level ref)</translation>
    </message>
    <message>
        <source>GPS:GPSAltitude</source>
        <translation>GPS Altitude</translation>
    </message>
    <message>
        <source>GPS:GPSDateStamp</source>
        <translation>GPS Date Stamp</translation>
    </message>
    <message>
        <source>GPS:GPSTimeStamp</source>
        <translation>GPS Time Stamp</translation>
    </message>
    <message>
        <source>GPS:GPSMapDatum</source>
        <translation>GPS Map Datum</translation>
    </message>
    <message>
        <source>GPS:GPSVersionID</source>
        <translation>GPS Version ID</translation>
    </message>
    <message>
        <source>GPS:GPSSatellites</source>
        <translation>GPS Satellites</translation>
    </message>
    <message>
        <source>GPS:GPSStatus</source>
        <translation>GPS Status</translation>
    </message>
    <message>
        <source>GPS:GPSStatus:A</source>
        <translation>Measurement Active</translation>
    </message>
    <message>
        <source>GPS:GPSStatus:V</source>
        <translation>Measurement Void</translation>
    </message>
    <message>
        <source>GPS:GPSMeasureMode</source>
        <translation>GPS Measure Mode</translation>
    </message>
    <message>
        <source>GPS:GPSMeasureMode:2</source>
        <translation>2-Dimensional Measurement</translation>
    </message>
    <message>
        <source>GPS:GPSMeasureMode:3</source>
        <translation>3-Dimensional Measurement</translation>
    </message>
    <message>
        <source>GPS:GPSDOP</source>
        <translation>GPS Dilution Of Precision</translation>
    </message>
    <message>
        <source>GPS:GPSHPositioningError</source>
        <translation>GPS Horizontal Positioning Error</translation>
    </message>
    <message>
        <source>GPS:GPSDifferential</source>
        <translation>GPS Differential</translation>
    </message>
    <message>
        <source>GPS:GPSDifferential:0</source>
        <translation>No Correction</translation>
    </message>
    <message>
        <source>GPS:GPSDifferential:1</source>
        <translation>Differential Corrected</translation>
    </message>
    <message>
        <source>GPS:GPSSpeedRef</source>
        <translation>GPS Speed Ref</translation>
    </message>
    <message>
        <source>GPS:GPSSpeedRef:K</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>GPS:GPSSpeedRef:M</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>GPS:GPSSpeedRef:N</source>
        <translation>knots</translation>
    </message>
    <message>
        <source>GPS:GPSSpeed</source>
        <translation>GPS Speed</translation>
    </message>
    <message>
        <source>GPS:GPSTrackRef</source>
        <translation>GPS Track Ref</translation>
    </message>
    <message>
        <source>GPS:GPSTrackRef:M</source>
        <translation>Magnetic North</translation>
    </message>
    <message>
        <source>GPS:GPSTrackRef:T</source>
        <translation>True North</translation>
    </message>
    <message>
        <source>GPS:GPSTrack</source>
        <translation>GPS Track</translation>
    </message>
    <message>
        <source>GPS:GPSImgDirectionRef</source>
        <translation>GPS Img Direction Ref</translation>
    </message>
    <message>
        <source>GPS:GPSImgDirectionRef:M</source>
        <translation>Magnetic North</translation>
    </message>
    <message>
        <source>GPS:GPSImgDirectionRef:T</source>
        <translation>True North</translation>
    </message>
    <message>
        <source>GPS:GPSImgDirection</source>
        <translation>GPS Img Direction</translation>
    </message>
    <message>
        <source>GPS:GPSProcessingMethod</source>
        <translation>GPS Processing Method</translation>
    </message>
    <message>
        <source>GPS:GPSAreaInformation</source>
        <translation>GPS Area Information</translation>
    </message>
    <message>
        <source>GPS:GPSDestLatitudeRef</source>
        <translation>GPS Dest Latitude Ref</translation>
    </message>
    <message>
        <source>GPS:GPSDestLatitudeRef:N</source>
        <translation>North</translation>
    </message>
    <message>
        <source>GPS:GPSDestLatitudeRef:S</source>
        <translation>South</translation>
    </message>
    <message>
        <source>GPS:GPSDestLatitude</source>
        <translation>GPS Dest Latitude</translation>
    </message>
    <message>
        <source>GPS:GPSDestLongitudeRef</source>
        <translation>GPS Dest Longitude Ref</translation>
    </message>
    <message>
        <source>GPS:GPSDestLongitudeRef:E</source>
        <translation>East</translation>
    </message>
    <message>
        <source>GPS:GPSDestLongitudeRef:W</source>
        <translation>West</translation>
    </message>
    <message>
        <source>GPS:GPSDestLongitude</source>
        <translation>GPS Dest Longitude</translation>
    </message>
    <message>
        <source>GPS:GPSDestBearingRef</source>
        <translation>GPS Dest Bearing Ref</translation>
    </message>
    <message>
        <source>GPS:GPSDestBearingRef:M</source>
        <translation>Magnetic North</translation>
    </message>
    <message>
        <source>GPS:GPSDestBearingRef:T</source>
        <translation>True North</translation>
    </message>
    <message>
        <source>GPS:GPSDestBearing</source>
        <translation>GPS Dest Bearing</translation>
    </message>
    <message>
        <source>GPS:GPSDestDistanceRef</source>
        <translation>GPS Dest Distance Ref</translation>
    </message>
    <message>
        <source>GPS:GPSDestDistanceRef:K</source>
        <translation>Kilometers</translation>
    </message>
    <message>
        <source>GPS:GPSDestDistanceRef:M</source>
        <translation>Miles</translation>
    </message>
    <message>
        <source>GPS:GPSDestDistanceRef:N</source>
        <translation>Nautical Miles</translation>
    </message>
    <message>
        <source>GPS:GPSDestDistance</source>
        <translation>GPS Dest Distance</translation>
    </message>
    <message>
        <source>IPTC:Sub-location</source>
        <translation>Sub-location</translation>
    </message>
    <message>
        <source>IPTC:City</source>
        <translation>City</translation>
    </message>
    <message>
        <source>IPTC:Province-State</source>
        <translation>Province-State</translation>
    </message>
    <message>
        <source>IPTC:Country-PrimaryLocationCode</source>
        <translation>Country-Primary Location Code</translation>
    </message>
    <message>
        <source>IPTC:Country-PrimaryLocationName</source>
        <translation>Country-Primary Location Name</translation>
    </message>
    <message>
        <source>IPTC:ContentLocationCode</source>
        <translation>Content Location Code</translation>
    </message>
    <message>
        <source>IPTC:ContentLocationName</source>
        <translation>Content Location Name</translation>
    </message>
    <message>
        <source>XMP-iptcCore:Location</source>
        <translation>Location</translation>
    </message>
    <message>
        <source>XMP-iptcCore:CountryCode</source>
        <translation>Country Code</translation>
    </message>
    <message>
        <source>XMP-photoshop:City</source>
        <translation>City</translation>
    </message>
    <message>
        <source>XMP-photoshop:State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>XMP-photoshop:Country</source>
        <translation>Country</translation>
    </message>
    <message>
        <source>XMP-iptcExt:LocationShown</source>
        <translation>Location Shown</translation>
    </message>
    <message>
        <source>XMP-iptcExt:LocationCreated</source>
        <translation>Location Created</translation>
    </message>
    <message>
        <source>IFD0:ImageDescription</source>
        <translation>Image Description</translation>
    </message>
    <message>
        <source>ExifIFD:UserComment</source>
        <translation>User Comment</translation>
    </message>
    <message>
        <source>IFD0:DocumentName</source>
        <translation>Document Name</translation>
    </message>
    <message>
        <source>ExifIFD:ImageTitle</source>
        <translation>Image Title</translation>
    </message>
    <message>
        <source>IPTC:ObjectName</source>
        <translation>Object Name</translation>
    </message>
    <message>
        <source>IPTC:Headline</source>
        <translation>Headline</translation>
    </message>
    <message>
        <source>IPTC:Caption-Abstract</source>
        <translation>Caption-Abstract</translation>
    </message>
    <message>
        <source>IPTC:LocalCaption</source>
        <translation>Local Caption</translation>
    </message>
    <message>
        <source>IPTC:Writer-Editor</source>
        <translation>Writer-Editor</translation>
    </message>
    <message>
        <source>XMP-dc:Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>XMP-dc:Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>XMP-photoshop:Headline</source>
        <translation>Headline</translation>
    </message>
    <message>
        <source>XMP-photoshop:CaptionWriter</source>
        <translation>Caption Writer</translation>
    </message>
    <message>
        <source>XMP-iptcCore:AltTextAccessibility</source>
        <translation>Alt Text Accessibility</translation>
    </message>
    <message>
        <source>XMP-iptcCore:ExtDescrAccessibility</source>
        <translation>Ext Descr Accessibility</translation>
    </message>
    <message>
        <source>IPTC:Keywords</source>
        <translation>Keywords</translation>
    </message>
    <message>
        <source>IPTC:Category</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>IPTC:SupplementalCategories</source>
        <translation>Supplemental Categories</translation>
    </message>
    <message>
        <source>IPTC:SubjectReference</source>
        <translation>Subject Reference</translation>
    </message>
    <message>
        <source>IPTC:ObjectAttributeReference</source>
        <translation>Object Attribute Reference</translation>
    </message>
    <message>
        <source>IPTC:ObjectTypeReference</source>
        <translation>Object Type Reference</translation>
    </message>
    <message>
        <source>XMP-dc:Subject</source>
        <translation>Subject</translation>
    </message>
    <message>
        <source>XMP-dc:Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>XMP-photoshop:Category</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>XMP-photoshop:SupplementalCategories</source>
        <translation>Supplemental Categories</translation>
    </message>
    <message>
        <source>XMP-iptcCore:IntellectualGenre</source>
        <translation>Intellectual Genre</translation>
    </message>
    <message>
        <source>XMP-iptcCore:Scene</source>
        <translation>Scene</translation>
    </message>
    <message>
        <source>XMP-iptcCore:SubjectCode</source>
        <translation>Subject Code</translation>
    </message>
    <message>
        <source>XMP-xmp:Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>XMP-xmp:Rating</source>
        <translation>Rating</translation>
    </message>
    <message>
        <source>XMP-xmp:Nickname</source>
        <translation>Nickname</translation>
    </message>
    <message>
        <source>XMP-iptcExt:AboutCvTerm</source>
        <translation>About Cv Term</translation>
    </message>
    <message>
        <source>XMP-iptcExt:Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>IPTC:Urgency</source>
        <translation>Urgency</translation>
    </message>
    <message>
        <source>IPTC:Urgency:0</source>
        <translation>0 (reserved)</translation>
    </message>
    <message>
        <source>IPTC:Urgency:1</source>
        <translation>1 (most urgent)</translation>
    </message>
    <message>
        <source>IPTC:Urgency:2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>IPTC:Urgency:3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>IPTC:Urgency:4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>IPTC:Urgency:5</source>
        <translation>5 (normal urgency)</translation>
    </message>
    <message>
        <source>IPTC:Urgency:6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>IPTC:Urgency:7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>IPTC:Urgency:8</source>
        <translation>8 (least urgent)</translation>
    </message>
    <message>
        <source>IPTC:Urgency:9</source>
        <translation>9 (user-defined priority)</translation>
    </message>
    <message>
        <source>IPTC:EditStatus</source>
        <translation>Edit Status</translation>
    </message>
    <message>
        <source>IPTC:EditorialUpdate</source>
        <translation>Editorial Update</translation>
    </message>
    <message>
        <source>IPTC:EditorialUpdate:01</source>
        <translation>Additional language</translation>
    </message>
    <message>
        <source>IPTC:SpecialInstructions</source>
        <translation>Special Instructions</translation>
    </message>
    <message>
        <source>IPTC:ActionAdvised</source>
        <translation>Action Advised</translation>
    </message>
    <message>
        <source>IPTC:ActionAdvised:01</source>
        <translation>Object Kill</translation>
    </message>
    <message>
        <source>IPTC:ActionAdvised:02</source>
        <translation>Object Replace</translation>
    </message>
    <message>
        <source>IPTC:ActionAdvised:03</source>
        <translation>Object Append</translation>
    </message>
    <message>
        <source>IPTC:ActionAdvised:04</source>
        <translation>Object Reference</translation>
    </message>
    <message>
        <source>IPTC:FixtureIdentifier</source>
        <translation>Fixture Identifier</translation>
    </message>
    <message>
        <source>IPTC:ObjectCycle</source>
        <translation>Object Cycle</translation>
    </message>
    <message>
        <source>IPTC:ObjectCycle:a</source>
        <translation>Morning</translation>
    </message>
    <message>
        <source>IPTC:ObjectCycle:b</source>
        <translation>Both Morning and Evening</translation>
    </message>
    <message>
        <source>IPTC:ObjectCycle:p</source>
        <translation>Evening</translation>
    </message>
    <message>
        <source>IPTC:OriginalTransmissionReference</source>
        <translation>Original Transmission Reference</translation>
    </message>
    <message>
        <source>IPTC:ReferenceService</source>
        <translation>Reference Service</translation>
    </message>
    <message>
        <source>IPTC:ReferenceDate</source>
        <translation>Reference Date</translation>
    </message>
    <message>
        <source>IPTC:ReferenceNumber</source>
        <translation>Reference Number</translation>
    </message>
    <message>
        <source>IPTC:JobID</source>
        <translation>Job ID</translation>
    </message>
    <message>
        <source>IPTC:OriginatingProgram</source>
        <translation>Originating Program</translation>
    </message>
    <message>
        <source>IPTC:ProgramVersion</source>
        <translation>Program Version</translation>
    </message>
    <message>
        <source>IPTC:LanguageIdentifier</source>
        <translation>Language Identifier</translation>
    </message>
    <message>
        <source>IPTC:ImageType</source>
        <translation>Image Type</translation>
    </message>
    <message>
        <source>IPTC:ImageOrientation</source>
        <translation>Image Orientation</translation>
    </message>
    <message>
        <source>IPTC:ImageOrientation:L</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>IPTC:ImageOrientation:P</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>IPTC:ImageOrientation:S</source>
        <translation>Square</translation>
    </message>
    <message>
        <source>IPTC:ApplicationRecordVersion</source>
        <translation>Application Record Version</translation>
    </message>
    <message>
        <source>XMP-photoshop:Urgency</source>
        <translation>Urgency</translation>
    </message>
    <message>
        <source>XMP-photoshop:Urgency:0</source>
        <translation>0 (reserved)</translation>
    </message>
    <message>
        <source>XMP-photoshop:Urgency:1</source>
        <translation>1 (most urgent)</translation>
    </message>
    <message>
        <source>XMP-photoshop:Urgency:2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>XMP-photoshop:Urgency:3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>XMP-photoshop:Urgency:4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>XMP-photoshop:Urgency:5</source>
        <translation>5 (normal urgency)</translation>
    </message>
    <message>
        <source>XMP-photoshop:Urgency:6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>XMP-photoshop:Urgency:7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>XMP-photoshop:Urgency:8</source>
        <translation>8 (least urgent)</translation>
    </message>
    <message>
        <source>XMP-photoshop:Urgency:9</source>
        <translation>9 (user-defined priority)</translation>
    </message>
    <message>
        <source>XMP-photoshop:Instructions</source>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>XMP-photoshop:TransmissionReference</source>
        <translation>Transmission Reference</translation>
    </message>
    <message>
        <source>XMP-photoshop:ColorMode</source>
        <translation>Color Mode</translation>
    </message>
    <message>
        <source>XMP-photoshop:ColorMode:0</source>
        <translation>Bitmap</translation>
    </message>
    <message>
        <source>XMP-photoshop:ColorMode:1</source>
        <translation>Grayscale</translation>
    </message>
    <message>
        <source>XMP-photoshop:ColorMode:2</source>
        <translation>Indexed</translation>
    </message>
    <message>
        <source>XMP-photoshop:ColorMode:3</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>XMP-photoshop:ColorMode:4</source>
        <translation>CMYK</translation>
    </message>
    <message>
        <source>XMP-photoshop:ColorMode:7</source>
        <translation>Multichannel</translation>
    </message>
    <message>
        <source>XMP-photoshop:ColorMode:8</source>
        <translation>Duotone</translation>
    </message>
    <message>
        <source>XMP-photoshop:ColorMode:9</source>
        <translation>Lab</translation>
    </message>
    <message>
        <source>XMP-photoshop:ICCProfileName</source>
        <translation>ICC Profile Name</translation>
    </message>
    <message>
        <source>XMP-photoshop:History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>XMP-dc:Identifier</source>
        <translation>Identifier</translation>
    </message>
    <message>
        <source>XMP-dc:Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>XMP-dc:Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>XMP-dc:Relation</source>
        <translation>Relation</translation>
    </message>
    <message>
        <source>XMP-dc:Coverage</source>
        <translation>Coverage</translation>
    </message>
    <message>
        <source>XMP-xmp:CreatorTool</source>
        <translation>Creator Tool</translation>
    </message>
    <message>
        <source>XMP-xmp:BaseURL</source>
        <translation>Base URL</translation>
    </message>
    <message>
        <source>XMP-iptcExt:PersonInImage</source>
        <translation>Person In Image</translation>
    </message>
    <message>
        <source>XMP-iptcExt:AdditionalModelInformation</source>
        <translation>Additional Model Information</translation>
    </message>
    <message>
        <source>XMP-iptcExt:ModelAge</source>
        <translation>Model Age</translation>
    </message>
    <message>
        <source>XMP-iptcExt:OrganisationInImageName</source>
        <translation>Organisation In Image Name</translation>
    </message>
    <message>
        <source>XMP-iptcExt:OrganisationInImageCode</source>
        <translation>Organisation In Image Code</translation>
    </message>
    <message>
        <source>XMP-iptcExt:Event</source>
        <translation>Event</translation>
    </message>
    <message>
        <source>XMP-iptcExt:EventID</source>
        <translation>Event ID</translation>
    </message>
    <message>
        <source>XMP-iptcExt:PersonInImageWDetails</source>
        <translation>Person In Image W Details</translation>
    </message>
    <message>
        <source>XMP-iptcExt:ProductInImage</source>
        <translation>Product In Image</translation>
    </message>
    <message>
        <source>XMP-iptcExt:ArtworkOrObject</source>
        <translation>Artwork Or Object</translation>
    </message>
    <message>
        <source>XMP-iptcExt:ImageRegion</source>
        <translation>Image Region</translation>
    </message>
    <message>
        <source>XMP-iptcExt:DigitalSourceType</source>
        <translation>Digital Source Type</translation>
    </message>
    <message>
        <source>XMP-iptcExt:DigitalImageGUID</source>
        <translation>Digital Image GUID</translation>
    </message>
    <message>
        <source>XMP-iptcExt:MaxAvailWidth</source>
        <translation>Max Avail Width</translation>
    </message>
    <message>
        <source>XMP-iptcExt:MaxAvailHeight</source>
        <translation>Max Avail Height</translation>
    </message>
    <message>
        <source>XMP-iptcExt:AISystemUsed</source>
        <translation>AI System Used</translation>
    </message>
    <message>
        <source>XMP-iptcExt:AISystemVersionUsed</source>
        <translation>AI System Version Used</translation>
    </message>
    <message>
        <source>XMP-iptcExt:AIPromptInformation</source>
        <translation>AI Prompt Information</translation>
    </message>
    <message>
        <source>XMP-iptcExt:AIPromptWriterName</source>
        <translation>AI Prompt Writer Name</translation>
    </message>
    <message>
        <source>IFD0:Artist</source>
        <translation>Artist</translation>
    </message>
    <message>
        <source>IPTC:By-line</source>
        <translation>By-line</translation>
    </message>
    <message>
        <source>IPTC:By-lineTitle</source>
        <translation>By-line Title</translation>
    </message>
    <message>
        <source>IPTC:Contact</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>XMP-dc:Creator</source>
        <translation>Creator</translation>
    </message>
    <message>
        <source>XMP-dc:Contributor</source>
        <translation>Contributor</translation>
    </message>
    <message>
        <source>XMP-dc:Publisher</source>
        <translation>Publisher</translation>
    </message>
    <message>
        <source>XMP-photoshop:AuthorsPosition</source>
        <translation>Authors Position</translation>
    </message>
    <message>
        <source>XMP-iptcCore:CreatorAddress</source>
        <translation>Creator Address</translation>
    </message>
    <message>
        <source>XMP-iptcCore:CreatorCity</source>
        <translation>Creator City</translation>
    </message>
    <message>
        <source>XMP-iptcCore:CreatorRegion</source>
        <translation>Creator Region</translation>
    </message>
    <message>
        <source>XMP-iptcCore:CreatorPostalCode</source>
        <translation>Creator Postal Code</translation>
    </message>
    <message>
        <source>XMP-iptcCore:CreatorCountry</source>
        <translation>Creator Country</translation>
    </message>
    <message>
        <source>XMP-iptcCore:CreatorWorkTelephone</source>
        <translation>Creator Work Telephone</translation>
    </message>
    <message>
        <source>XMP-iptcCore:CreatorWorkEmail</source>
        <translation>Creator Work Email</translation>
    </message>
    <message>
        <source>XMP-iptcCore:CreatorWorkURL</source>
        <translation>Creator Work URL</translation>
    </message>
    <message>
        <source>IFD0:Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>IPTC:CopyrightNotice</source>
        <translation>Copyright Notice</translation>
    </message>
    <message>
        <source>IPTC:Credit</source>
        <translation>Credit</translation>
    </message>
    <message>
        <source>IPTC:Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>XMP-dc:Rights</source>
        <translation>Rights</translation>
    </message>
    <message>
        <source>XMP-dc:Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>XMP-photoshop:Credit</source>
        <translation>Credit</translation>
    </message>
    <message>
        <source>XMP-photoshop:Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>XMP-xmpRights:Marked</source>
        <translation>Marked</translation>
    </message>
    <message>
        <source>XMP-xmpRights:Marked:True</source>
        <translation>True</translation>
    </message>
    <message>
        <source>XMP-xmpRights:Marked:False</source>
        <translation>False</translation>
    </message>
    <message>
        <source>XMP-xmpRights:Owner</source>
        <translation>Owner</translation>
    </message>
    <message>
        <source>XMP-xmpRights:UsageTerms</source>
        <translation>Usage Terms</translation>
    </message>
    <message>
        <source>XMP-xmpRights:WebStatement</source>
        <translation>Web Statement</translation>
    </message>
    <message>
        <source>XMP-xmpRights:Certificate</source>
        <translation>Certificate</translation>
    </message>
    <message>
        <source>XMP-plus:ImageSupplierImageID</source>
        <translation>Image Supplier Image ID</translation>
    </message>
    <message>
        <source>XMP-plus:ModelReleaseStatus</source>
        <translation>Model Release Status</translation>
    </message>
    <message>
        <source>XMP-plus:ModelReleaseStatus:MR-LMR</source>
        <translation>Limited or Incomplete Model Releases</translation>
    </message>
    <message>
        <source>XMP-plus:ModelReleaseStatus:MR-NAP</source>
        <translation>Not Applicable</translation>
    </message>
    <message>
        <source>XMP-plus:ModelReleaseStatus:MR-NON</source>
        <translation>None</translation>
    </message>
    <message>
        <source>XMP-plus:ModelReleaseStatus:MR-UMR</source>
        <translation>Unlimited Model Releases</translation>
    </message>
    <message>
        <source>XMP-plus:ModelReleaseID</source>
        <translation>Model Release ID</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure</source>
        <translation>Minor Model Age Disclosure</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure:AG-A15</source>
        <translation>Age 15</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure:AG-A16</source>
        <translation>Age 16</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure:AG-A17</source>
        <translation>Age 17</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure:AG-A18</source>
        <translation>Age 18</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure:AG-A19</source>
        <translation>Age 19</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure:AG-A20</source>
        <translation>Age 20</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure:AG-A21</source>
        <translation>Age 21</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure:AG-A22</source>
        <translation>Age 22</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure:AG-A23</source>
        <translation>Age 23</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure:AG-A24</source>
        <translation>Age 24</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure:AG-A25</source>
        <translation>Age 25 or Over</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure:AG-U14</source>
        <translation>Age 14 or Under</translation>
    </message>
    <message>
        <source>XMP-plus:MinorModelAgeDisclosure:AG-UNK</source>
        <translation>Age Unknown</translation>
    </message>
    <message>
        <source>XMP-plus:PropertyReleaseStatus</source>
        <translation>Property Release Status</translation>
    </message>
    <message>
        <source>XMP-plus:PropertyReleaseStatus:PR-LPR</source>
        <translation>Limited or Incomplete Property Releases</translation>
    </message>
    <message>
        <source>XMP-plus:PropertyReleaseStatus:PR-NAP</source>
        <translation>Not Applicable</translation>
    </message>
    <message>
        <source>XMP-plus:PropertyReleaseStatus:PR-NON</source>
        <translation>None</translation>
    </message>
    <message>
        <source>XMP-plus:PropertyReleaseStatus:PR-UPR</source>
        <translation>Unlimited Property Releases</translation>
    </message>
    <message>
        <source>XMP-plus:PropertyReleaseID</source>
        <translation>Property Release ID</translation>
    </message>
    <message>
        <source>XMP-plus:DataMining</source>
        <translation>Data Mining</translation>
    </message>
    <message>
        <source>XMP-plus:DataMining:DMI-ALLOWED</source>
        <translation>Allowed</translation>
    </message>
    <message>
        <source>XMP-plus:DataMining:DMI-PROHIBITED</source>
        <translation>Prohibited</translation>
    </message>
    <message>
        <source>XMP-plus:DataMining:DMI-PROHIBITED-AIMLTRAINING</source>
        <translation>Prohibited for AI/ML training</translation>
    </message>
    <message>
        <source>XMP-plus:DataMining:DMI-PROHIBITED-EXCEPTSEARCHENGINEINDEXING</source>
        <translation>Prohibited except for search engine indexing</translation>
    </message>
    <message>
        <source>XMP-plus:DataMining:DMI-PROHIBITED-GENAIMLTRAINING</source>
        <translation>Prohibited for Generative AI/ML training</translation>
    </message>
    <message>
        <source>XMP-plus:DataMining:DMI-PROHIBITED-SEECONSTRAINT</source>
        <translation>Prohibited, see plus:OtherConstraints</translation>
    </message>
    <message>
        <source>XMP-plus:DataMining:DMI-PROHIBITED-SEEEMBEDDEDRIGHTSEXPR</source>
        <translation>Prohibited, see iptcExt:EmbdEncRightsExpr</translation>
    </message>
    <message>
        <source>XMP-plus:DataMining:DMI-PROHIBITED-SEELINKEDRIGHTSEXPR</source>
        <translation>Prohibited, see iptcExt:LinkedEncRightsExpr</translation>
    </message>
    <message>
        <source>XMP-plus:DataMining:DMI-UNSPECIFIED</source>
        <translation>Unspecified - no prohibition defined</translation>
    </message>
    <message>
        <source>XMP-plus:OtherConstraints</source>
        <translation>Other Constraints</translation>
    </message>
    <message>
        <source>XMP-plus:ImageCreator</source>
        <translation>Image Creator</translation>
    </message>
    <message>
        <source>XMP-plus:CopyrightOwner</source>
        <translation>Copyright Owner</translation>
    </message>
    <message>
        <source>XMP-plus:Licensor</source>
        <translation>Licensor</translation>
    </message>
    <message>
        <source>XMP-plus:ImageSupplier</source>
        <translation>Image Supplier</translation>
    </message>
    <message>
        <source>XMP-iptcExt:Contributor</source>
        <translation>Contributor</translation>
    </message>
    <message>
        <source>XMP-iptcExt:RegistryID</source>
        <translation>Registry ID</translation>
    </message>
    <message>
        <source>XMP-iptcExt:EmbdEncRightsExpr</source>
        <translation>Embd Enc Rights Expr</translation>
    </message>
    <message>
        <source>XMP-iptcExt:LinkedEncRightsExpr</source>
        <translation>Linked Enc Rights Expr</translation>
    </message>
    <message>
        <source>Canon:CanonImageType</source>
        <translation>Canon Image Type</translation>
    </message>
    <message>
        <source>Canon:CanonFirmwareVersion</source>
        <translation>Canon Firmware Version</translation>
    </message>
    <message>
        <source>Canon:OwnerName</source>
        <translation>Owner Name</translation>
    </message>
    <message>
        <source>Canon:SerialNumber</source>
        <translation>Serial Number</translation>
    </message>
    <message>
        <source>Canon:InternalSerialNumber</source>
        <translation>Internal Serial Number</translation>
    </message>
    <message>
        <source>Canon:CanonModelID</source>
        <translation>Canon Model ID</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1042</source>
        <translation>EOS M50 / Kiss M</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2049</source>
        <translation>PowerShot SX740 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2052</source>
        <translation>PowerShot G5 X Mark II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2053</source>
        <translation>PowerShot SX70 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2056</source>
        <translation>PowerShot G7 X Mark III</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2065</source>
        <translation>EOS M6 Mark II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2066</source>
        <translation>EOS M200</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:16842752</source>
        <translation>PowerShot A30</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:17039360</source>
        <translation>PowerShot S300 / Digital IXUS 300 / IXY Digital 300</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:17170432</source>
        <translation>PowerShot A20</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:17301504</source>
        <translation>PowerShot A10</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:17367040</source>
        <translation>PowerShot S110 / Digital IXUS v / IXY Digital 200</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:17825792</source>
        <translation>PowerShot G2</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:17891328</source>
        <translation>PowerShot S40</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:17956864</source>
        <translation>PowerShot S30</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:18022400</source>
        <translation>PowerShot A40</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:18087936</source>
        <translation>EOS D30</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:18153472</source>
        <translation>PowerShot A100</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:18219008</source>
        <translation>PowerShot S200 / Digital IXUS v2 / IXY Digital 200a</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:18284544</source>
        <translation>PowerShot A200</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:18350080</source>
        <translation>PowerShot S330 / Digital IXUS 330 / IXY Digital 300a</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:18415616</source>
        <translation>PowerShot G3</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:18939904</source>
        <translation>PowerShot S45</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:19070976</source>
        <translation>PowerShot SD100 / Digital IXUS II / IXY Digital 30</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:19136512</source>
        <translation>PowerShot S230 / Digital IXUS v3 / IXY Digital 320</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:19202048</source>
        <translation>PowerShot A70</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:19267584</source>
        <translation>PowerShot A60</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:19333120</source>
        <translation>PowerShot S400 / Digital IXUS 400 / IXY Digital 400</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:19464192</source>
        <translation>PowerShot G5</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:19922944</source>
        <translation>PowerShot A300</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:19988480</source>
        <translation>PowerShot S50</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:20185088</source>
        <translation>PowerShot A80</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:20250624</source>
        <translation>PowerShot SD10 / Digital IXUS i / IXY Digital L</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:20316160</source>
        <translation>PowerShot S1 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:20381696</source>
        <translation>PowerShot Pro1</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:20447232</source>
        <translation>PowerShot S70</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:20512768</source>
        <translation>PowerShot S60</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:20971520</source>
        <translation>PowerShot G6</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:21037056</source>
        <translation>PowerShot S500 / Digital IXUS 500 / IXY Digital 500</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:21102592</source>
        <translation>PowerShot A75</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:21233664</source>
        <translation>PowerShot SD110 / Digital IXUS IIs / IXY Digital 30a</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:21299200</source>
        <translation>PowerShot A400</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:21430272</source>
        <translation>PowerShot A310</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:21561344</source>
        <translation>PowerShot A85</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:22151168</source>
        <translation>PowerShot S410 / Digital IXUS 430 / IXY Digital 450</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:22216704</source>
        <translation>PowerShot A95</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:22282240</source>
        <translation>PowerShot SD300 / Digital IXUS 40 / IXY Digital 50</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:22347776</source>
        <translation>PowerShot SD200 / Digital IXUS 30 / IXY Digital 40</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:22413312</source>
        <translation>PowerShot A520</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:22478848</source>
        <translation>PowerShot A510</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:22609920</source>
        <translation>PowerShot SD20 / Digital IXUS i5 / IXY Digital L2</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:23330816</source>
        <translation>PowerShot S2 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:23396352</source>
        <translation>PowerShot SD430 / Digital IXUS Wireless / IXY Digital Wireless</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:23461888</source>
        <translation>PowerShot SD500 / Digital IXUS 700 / IXY Digital 600</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:23494656</source>
        <translation>EOS D60</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:24117248</source>
        <translation>PowerShot SD30 / Digital IXUS i Zoom / IXY Digital L3</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:24379392</source>
        <translation>PowerShot A430</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:24444928</source>
        <translation>PowerShot A410</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:24510464</source>
        <translation>PowerShot S80</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:24641536</source>
        <translation>PowerShot A620</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:24707072</source>
        <translation>PowerShot A610</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:25165824</source>
        <translation>PowerShot SD630 / Digital IXUS 65 / IXY Digital 80</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:25231360</source>
        <translation>PowerShot SD450 / Digital IXUS 55 / IXY Digital 60</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:25296896</source>
        <translation>PowerShot TX1</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:25624576</source>
        <translation>PowerShot SD400 / Digital IXUS 50 / IXY Digital 55</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:25690112</source>
        <translation>PowerShot A420</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:25755648</source>
        <translation>PowerShot SD900 / Digital IXUS 900 Ti / IXY Digital 1000</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:26214400</source>
        <translation>PowerShot SD550 / Digital IXUS 750 / IXY Digital 700</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:26345472</source>
        <translation>PowerShot A700</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:26476544</source>
        <translation>PowerShot SD700 IS / Digital IXUS 800 IS / IXY Digital 800 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:26542080</source>
        <translation>PowerShot S3 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:26607616</source>
        <translation>PowerShot A540</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:26673152</source>
        <translation>PowerShot SD600 / Digital IXUS 60 / IXY Digital 70</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:26738688</source>
        <translation>PowerShot G7</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:26804224</source>
        <translation>PowerShot A530</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:33554432</source>
        <translation>PowerShot SD800 IS / Digital IXUS 850 IS / IXY Digital 900 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:33619968</source>
        <translation>PowerShot SD40 / Digital IXUS i7 / IXY Digital L4</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:33685504</source>
        <translation>PowerShot A710 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:33751040</source>
        <translation>PowerShot A640</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:33816576</source>
        <translation>PowerShot A630</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:34144256</source>
        <translation>PowerShot S5 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:34603008</source>
        <translation>PowerShot A460</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:34734080</source>
        <translation>PowerShot SD850 IS / Digital IXUS 950 IS / IXY Digital 810 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:34799616</source>
        <translation>PowerShot A570 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:34865152</source>
        <translation>PowerShot A560</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:34930688</source>
        <translation>PowerShot SD750 / Digital IXUS 75 / IXY Digital 90</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:34996224</source>
        <translation>PowerShot SD1000 / Digital IXUS 70 / IXY Digital 10</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:35127296</source>
        <translation>PowerShot A550</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:35192832</source>
        <translation>PowerShot A450</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:35848192</source>
        <translation>PowerShot G9</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:35913728</source>
        <translation>PowerShot A650 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:36044800</source>
        <translation>PowerShot A720 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:36241408</source>
        <translation>PowerShot SX100 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:36700160</source>
        <translation>PowerShot SD950 IS / Digital IXUS 960 IS / IXY Digital 2000 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:36765696</source>
        <translation>PowerShot SD870 IS / Digital IXUS 860 IS / IXY Digital 910 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:36831232</source>
        <translation>PowerShot SD890 IS / Digital IXUS 970 IS / IXY Digital 820 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:37093376</source>
        <translation>PowerShot SD790 IS / Digital IXUS 90 IS / IXY Digital 95 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:37158912</source>
        <translation>PowerShot SD770 IS / Digital IXUS 85 IS / IXY Digital 25 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:37224448</source>
        <translation>PowerShot A590 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:37289984</source>
        <translation>PowerShot A580</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:37879808</source>
        <translation>PowerShot A470</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:37945344</source>
        <translation>PowerShot SD1100 IS / Digital IXUS 80 IS / IXY Digital 20 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:38141952</source>
        <translation>PowerShot SX1 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:38207488</source>
        <translation>PowerShot SX10 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:38273024</source>
        <translation>PowerShot A1000 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:38338560</source>
        <translation>PowerShot G10</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:38862848</source>
        <translation>PowerShot A2000 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:38928384</source>
        <translation>PowerShot SX110 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:38993920</source>
        <translation>PowerShot SD990 IS / Digital IXUS 980 IS / IXY Digital 3000 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:39059456</source>
        <translation>PowerShot SD880 IS / Digital IXUS 870 IS / IXY Digital 920 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:39124992</source>
        <translation>PowerShot E1</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:39190528</source>
        <translation>PowerShot D10</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:39256064</source>
        <translation>PowerShot SD960 IS / Digital IXUS 110 IS / IXY Digital 510 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:39321600</source>
        <translation>PowerShot A2100 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:39387136</source>
        <translation>PowerShot A480</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:39845888</source>
        <translation>PowerShot SX200 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:39911424</source>
        <translation>PowerShot SD970 IS / Digital IXUS 990 IS / IXY Digital 830 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:39976960</source>
        <translation>PowerShot SD780 IS / Digital IXUS 100 IS / IXY Digital 210 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:40042496</source>
        <translation>PowerShot A1100 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:40108032</source>
        <translation>PowerShot SD1200 IS / Digital IXUS 95 IS / IXY Digital 110 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:40894464</source>
        <translation>PowerShot G11</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:40960000</source>
        <translation>PowerShot SX120 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:41025536</source>
        <translation>PowerShot S90</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:41222144</source>
        <translation>PowerShot SX20 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:41287680</source>
        <translation>PowerShot SD980 IS / Digital IXUS 200 IS / IXY Digital 930 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:41353216</source>
        <translation>PowerShot SD940 IS / Digital IXUS 120 IS / IXY Digital 220 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:41943040</source>
        <translation>PowerShot A495</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:42008576</source>
        <translation>PowerShot A490</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:42074112</source>
        <translation>PowerShot A3100/A3150 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:42139648</source>
        <translation>PowerShot A3000 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:42205184</source>
        <translation>PowerShot SD1400 IS / IXUS 130 / IXY 400F</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:42270720</source>
        <translation>PowerShot SD1300 IS / IXUS 105 / IXY 200F</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:42336256</source>
        <translation>PowerShot SD3500 IS / IXUS 210 / IXY 10S</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:42401792</source>
        <translation>PowerShot SX210 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:42467328</source>
        <translation>PowerShot SD4000 IS / IXUS 300 HS / IXY 30S</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:42532864</source>
        <translation>PowerShot SD4500 IS / IXUS 1000 HS / IXY 50S</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:43122688</source>
        <translation>PowerShot G12</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:43188224</source>
        <translation>PowerShot SX30 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:43253760</source>
        <translation>PowerShot SX130 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:43319296</source>
        <translation>PowerShot S95</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:43515904</source>
        <translation>PowerShot A3300 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:43581440</source>
        <translation>PowerShot A3200 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:50331648</source>
        <translation>PowerShot ELPH 500 HS / IXUS 310 HS / IXY 31S</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:50397184</source>
        <translation>PowerShot Pro90 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:50397185</source>
        <translation>PowerShot A800</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:50462720</source>
        <translation>PowerShot ELPH 100 HS / IXUS 115 HS / IXY 210F</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:50528256</source>
        <translation>PowerShot SX230 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:50593792</source>
        <translation>PowerShot ELPH 300 HS / IXUS 220 HS / IXY 410F</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:50659328</source>
        <translation>PowerShot A2200</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:50724864</source>
        <translation>PowerShot A1200</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:50790400</source>
        <translation>PowerShot SX220 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:50855936</source>
        <translation>PowerShot G1 X</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:50921472</source>
        <translation>PowerShot SX150 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:51380224</source>
        <translation>PowerShot ELPH 510 HS / IXUS 1100 HS / IXY 51S</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:51445760</source>
        <translation>PowerShot S100 (new)</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:51511296</source>
        <translation>PowerShot ELPH 310 HS / IXUS 230 HS / IXY 600F</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:51576832</source>
        <translation>PowerShot SX40 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:51642368</source>
        <translation>IXY 32S</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:51773440</source>
        <translation>PowerShot A1300</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:51838976</source>
        <translation>PowerShot A810</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:51904512</source>
        <translation>PowerShot ELPH 320 HS / IXUS 240 HS / IXY 420F</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:51970048</source>
        <translation>PowerShot ELPH 110 HS / IXUS 125 HS / IXY 220F</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:52428800</source>
        <translation>PowerShot D20</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:52494336</source>
        <translation>PowerShot A4000 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:52559872</source>
        <translation>PowerShot SX260 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:52625408</source>
        <translation>PowerShot SX240 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:52690944</source>
        <translation>PowerShot ELPH 530 HS / IXUS 510 HS / IXY 1</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:52756480</source>
        <translation>PowerShot ELPH 520 HS / IXUS 500 HS / IXY 3</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:52822016</source>
        <translation>PowerShot A3400 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:52887552</source>
        <translation>PowerShot A2400 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:52953088</source>
        <translation>PowerShot A2300</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:53608448</source>
        <translation>PowerShot S100V</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:53673984</source>
        <translation>PowerShot G15</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:53739520</source>
        <translation>PowerShot SX50 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:53805056</source>
        <translation>PowerShot SX160 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:53870592</source>
        <translation>PowerShot S110 (new)</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:53936128</source>
        <translation>PowerShot SX500 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:54001664</source>
        <translation>PowerShot N</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:54067200</source>
        <translation>IXUS 245 HS / IXY 430F</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:54525952</source>
        <translation>PowerShot SX280 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:54591488</source>
        <translation>PowerShot SX270 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:54657024</source>
        <translation>PowerShot A3500 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:54722560</source>
        <translation>PowerShot A2600</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:54788096</source>
        <translation>PowerShot SX275 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:54853632</source>
        <translation>PowerShot A1400</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:54919168</source>
        <translation>PowerShot ELPH 130 IS / IXUS 140 / IXY 110F</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:54984704</source>
        <translation>PowerShot ELPH 115/120 IS / IXUS 132/135 / IXY 90F/100F</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:55115776</source>
        <translation>PowerShot ELPH 330 HS / IXUS 255 HS / IXY 610F</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:55640064</source>
        <translation>PowerShot A2500</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:55836672</source>
        <translation>PowerShot G16</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:55902208</source>
        <translation>PowerShot S120</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:55967744</source>
        <translation>PowerShot SX170 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:56098816</source>
        <translation>PowerShot SX510 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:56164352</source>
        <translation>PowerShot S200 (new)</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:56623104</source>
        <translation>IXY 620F</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:56688640</source>
        <translation>PowerShot N100</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:56885248</source>
        <translation>PowerShot G1 X Mark II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:56950784</source>
        <translation>PowerShot D30</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:57016320</source>
        <translation>PowerShot SX700 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:57081856</source>
        <translation>PowerShot SX600 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:57147392</source>
        <translation>PowerShot ELPH 140 IS / IXUS 150 / IXY 130</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:57212928</source>
        <translation>PowerShot ELPH 135 / IXUS 145 / IXY 120</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:57671680</source>
        <translation>PowerShot ELPH 340 HS / IXUS 265 HS / IXY 630</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:57737216</source>
        <translation>PowerShot ELPH 150 IS / IXUS 155 / IXY 140</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:57933824</source>
        <translation>EOS M3</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:57999360</source>
        <translation>PowerShot SX60 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:58064896</source>
        <translation>PowerShot SX520 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:58130432</source>
        <translation>PowerShot SX400 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:58195968</source>
        <translation>PowerShot G7 X</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:58261504</source>
        <translation>PowerShot N2</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:58720256</source>
        <translation>PowerShot SX530 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:58851328</source>
        <translation>PowerShot SX710 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:58916864</source>
        <translation>PowerShot SX610 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:58982400</source>
        <translation>EOS M10</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:59047936</source>
        <translation>PowerShot G3 X</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:59113472</source>
        <translation>PowerShot ELPH 165 HS / IXUS 165 / IXY 160</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:59179008</source>
        <translation>PowerShot ELPH 160 / IXUS 160</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:59244544</source>
        <translation>PowerShot ELPH 350 HS / IXUS 275 HS / IXY 640</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:59310080</source>
        <translation>PowerShot ELPH 170 IS / IXUS 170</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:59834368</source>
        <translation>PowerShot SX410 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:59965440</source>
        <translation>PowerShot G9 X</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:60030976</source>
        <translation>EOS M5</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:60096512</source>
        <translation>PowerShot G5 X</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:60227584</source>
        <translation>PowerShot G7 X Mark II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:60293120</source>
        <translation>EOS M100</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:60358656</source>
        <translation>PowerShot ELPH 360 HS / IXUS 285 HS / IXY 650</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:67174400</source>
        <translation>PowerShot SX540 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:67239936</source>
        <translation>PowerShot SX420 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:67305472</source>
        <translation>PowerShot ELPH 190 IS / IXUS 180 / IXY 190</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:67371008</source>
        <translation>PowerShot G1</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:67371009</source>
        <translation>PowerShot ELPH 180 IS / IXUS 175 / IXY 180</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:67436544</source>
        <translation>PowerShot SX720 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:67502080</source>
        <translation>PowerShot SX620 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:67567616</source>
        <translation>EOS M6</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:68157440</source>
        <translation>PowerShot G9 X Mark II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:68485120</source>
        <translation>PowerShot ELPH 185 / IXUS 185 / IXY 200</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:68550656</source>
        <translation>PowerShot SX430 IS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:68616192</source>
        <translation>PowerShot SX730 HS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:68681728</source>
        <translation>PowerShot G1 X Mark III</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:100925440</source>
        <translation>PowerShot S100 / Digital IXUS / IXY Digital</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1073742375</source>
        <translation>EOS C50</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255475</source>
        <translation>DC19/DC21/DC22</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255476</source>
        <translation>XH A1</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255477</source>
        <translation>HV10</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255478</source>
        <translation>MD130/MD140/MD150/MD160/ZR850</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255735</source>
        <translation>DC50</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255736</source>
        <translation>HV20</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255737</source>
        <translation>DC211</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255738</source>
        <translation>HG10</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255739</source>
        <translation>HR10</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255741</source>
        <translation>MD255/ZR950</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255900</source>
        <translation>HF11</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255992</source>
        <translation>HV30</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255996</source>
        <translation>XH A1S</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255998</source>
        <translation>DC301/DC310/DC311/DC320/DC330</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074255999</source>
        <translation>FS100</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074256000</source>
        <translation>HF10</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074256002</source>
        <translation>HG20/HG21</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074256165</source>
        <translation>HF21</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074256166</source>
        <translation>HF S11</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074256248</source>
        <translation>HV40</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074256263</source>
        <translation>DC410/DC411/DC420</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074256264</source>
        <translation>FS19/FS20/FS21/FS22/FS200</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074256265</source>
        <translation>HF20/HF200</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074256266</source>
        <translation>HF S10/S100</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074256526</source>
        <translation>HF R10/R16/R17/R18/R100/R106</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074256527</source>
        <translation>HF M30/M31/M36/M300/M306</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074256528</source>
        <translation>HF S20/S21/S200</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074256530</source>
        <translation>FS31/FS36/FS37/FS300/FS305/FS306/FS307</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074257056</source>
        <translation>EOS C300</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074257321</source>
        <translation>HF G25</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074257844</source>
        <translation>XC10</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:1074258371</source>
        <translation>EOS C200</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147483649</source>
        <translation>EOS-1D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484007</source>
        <translation>EOS-1DS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484008</source>
        <translation>EOS 10D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484009</source>
        <translation>EOS-1D Mark III</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484016</source>
        <translation>EOS Digital Rebel / 300D / Kiss Digital</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484020</source>
        <translation>EOS-1D Mark II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484021</source>
        <translation>EOS 20D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484022</source>
        <translation>EOS Digital Rebel XSi / 450D / Kiss X2</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484040</source>
        <translation>EOS-1Ds Mark II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484041</source>
        <translation>EOS Digital Rebel XT / 350D / Kiss Digital N</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484048</source>
        <translation>EOS 40D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484179</source>
        <translation>EOS 5D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484181</source>
        <translation>EOS-1Ds Mark III</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484184</source>
        <translation>EOS 5D Mark II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484185</source>
        <translation>WFT-E1</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484210</source>
        <translation>EOS-1D Mark II N</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484212</source>
        <translation>EOS 30D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484214</source>
        <translation>EOS Digital Rebel XTi / 400D / Kiss Digital X</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484225</source>
        <translation>WFT-E2</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484230</source>
        <translation>WFT-E3</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484240</source>
        <translation>EOS 7D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484242</source>
        <translation>EOS Rebel T1i / 500D / Kiss X3</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484244</source>
        <translation>EOS Rebel XS / 1000D / Kiss F</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484257</source>
        <translation>EOS 50D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484265</source>
        <translation>EOS-1D X</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484272</source>
        <translation>EOS Rebel T2i / 550D / Kiss X4</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484273</source>
        <translation>WFT-E4</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484275</source>
        <translation>WFT-E5</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484289</source>
        <translation>EOS-1D Mark IV</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484293</source>
        <translation>EOS 5D Mark III</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484294</source>
        <translation>EOS Rebel T3i / 600D / Kiss X5</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484295</source>
        <translation>EOS 60D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484296</source>
        <translation>EOS Rebel T3 / 1100D / Kiss X50</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484297</source>
        <translation>EOS 7D Mark II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484311</source>
        <translation>WFT-E2 II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484312</source>
        <translation>WFT-E4 II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484417</source>
        <translation>EOS Rebel T4i / 650D / Kiss X6i</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484418</source>
        <translation>EOS 6D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484452</source>
        <translation>EOS-1D C</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484453</source>
        <translation>EOS 70D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484454</source>
        <translation>EOS Rebel T5i / 700D / Kiss X7i</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484455</source>
        <translation>EOS Rebel T5 / 1200D / Kiss X70 / Hi</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484456</source>
        <translation>EOS-1D X Mark II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484465</source>
        <translation>EOS M</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484486</source>
        <translation>EOS Rebel SL1 / 100D / Kiss X7</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484487</source>
        <translation>EOS Rebel T6s / 760D / 8000D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484489</source>
        <translation>EOS 5D Mark IV</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484496</source>
        <translation>EOS 80D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484501</source>
        <translation>EOS M2</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484546</source>
        <translation>EOS 5DS</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484563</source>
        <translation>EOS Rebel T6i / 750D / Kiss X8i</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484673</source>
        <translation>EOS 5DS R</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484676</source>
        <translation>EOS Rebel T6 / 1300D / Kiss X80</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484677</source>
        <translation>EOS Rebel T7i / 800D / Kiss X9i</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484678</source>
        <translation>EOS 6D Mark II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484680</source>
        <translation>EOS 77D / 9000D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484695</source>
        <translation>EOS Rebel SL2 / 200D / Kiss X9</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484705</source>
        <translation>EOS R5</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484706</source>
        <translation>EOS Rebel T100 / 4000D / 3000D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484708</source>
        <translation>EOS R</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484712</source>
        <translation>EOS-1D X Mark III</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484722</source>
        <translation>EOS Rebel T7 / 2000D / 1500D / Kiss X90</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484723</source>
        <translation>EOS RP</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484725</source>
        <translation>EOS Rebel T8i / 850D / X10i</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484726</source>
        <translation>EOS SL3 / 250D / Kiss X10</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484727</source>
        <translation>EOS 90D</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484752</source>
        <translation>EOS R3</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484755</source>
        <translation>EOS R6</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484772</source>
        <translation>EOS R7</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484773</source>
        <translation>EOS R10</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484775</source>
        <translation>PowerShot ZOOM</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484776</source>
        <translation>EOS M50 Mark II / Kiss M2</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484800</source>
        <translation>EOS R50</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484801</source>
        <translation>EOS R6 Mark II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484807</source>
        <translation>EOS R8</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484817</source>
        <translation>PowerShot V10</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484821</source>
        <translation>EOS R1</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484822</source>
        <translation>EOS R5 Mark II</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484823</source>
        <translation>PowerShot V1</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484824</source>
        <translation>EOS R100</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484950</source>
        <translation>EOS R50 V</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484952</source>
        <translation>EOS R6 Mark III</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147484960</source>
        <translation>EOS D2000C</translation>
    </message>
    <message>
        <source>Canon:CanonModelID:2147485024</source>
        <translation>EOS D6000C</translation>
    </message>
    <message>
        <source>Canon:LensModel</source>
        <translation>Lens Model</translation>
    </message>
    <message>
        <source>Canon:ColorTemperature</source>
        <translation>Color Temperature</translation>
    </message>
    <message>
        <source>Canon:ColorSpace</source>
        <translation>Color Space</translation>
    </message>
    <message>
        <source>Canon:ColorSpace:1</source>
        <translation>sRGB</translation>
    </message>
    <message>
        <source>Canon:ColorSpace:2</source>
        <translation>Adobe RGB</translation>
    </message>
    <message>
        <source>Canon:ColorSpace:65535</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:FileNumber</source>
        <translation>File Number</translation>
    </message>
    <message>
        <source>Canon:MacroMode</source>
        <translation>Macro Mode</translation>
    </message>
    <message>
        <source>Canon:MacroMode:1</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Canon:MacroMode:2</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Canon:SelfTimer</source>
        <translation>Self Timer</translation>
    </message>
    <message>
        <source>Canon:Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Canon:Quality:-1</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:Quality:1</source>
        <translation>Economy</translation>
    </message>
    <message>
        <source>Canon:Quality:2</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Canon:Quality:3</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Canon:Quality:4</source>
        <translation>RAW</translation>
    </message>
    <message>
        <source>Canon:Quality:5</source>
        <translation>Superfine</translation>
    </message>
    <message>
        <source>Canon:Quality:7</source>
        <translation>CRAW</translation>
    </message>
    <message>
        <source>Canon:Quality:130</source>
        <translation>Light (RAW)</translation>
    </message>
    <message>
        <source>Canon:Quality:131</source>
        <translation>Standard (RAW)</translation>
    </message>
    <message>
        <source>Canon:CanonFlashMode</source>
        <translation>Canon Flash Mode</translation>
    </message>
    <message>
        <source>Canon:CanonFlashMode:-1</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:CanonFlashMode:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Canon:CanonFlashMode:1</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Canon:CanonFlashMode:2</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Canon:CanonFlashMode:3</source>
        <translation>Red-eye reduction</translation>
    </message>
    <message>
        <source>Canon:CanonFlashMode:4</source>
        <translation>Slow-sync</translation>
    </message>
    <message>
        <source>Canon:CanonFlashMode:5</source>
        <translation>Red-eye reduction (Auto)</translation>
    </message>
    <message>
        <source>Canon:CanonFlashMode:6</source>
        <translation>Red-eye reduction (On)</translation>
    </message>
    <message>
        <source>Canon:CanonFlashMode:16</source>
        <translation>External flash</translation>
    </message>
    <message>
        <source>Canon:ContinuousDrive</source>
        <translation>Continuous Drive</translation>
    </message>
    <message>
        <source>Canon:ContinuousDrive:0</source>
        <translation>Single</translation>
    </message>
    <message>
        <source>Canon:ContinuousDrive:1</source>
        <translation>Continuous</translation>
    </message>
    <message>
        <source>Canon:ContinuousDrive:2</source>
        <translation>Movie</translation>
    </message>
    <message>
        <source>Canon:ContinuousDrive:3</source>
        <translation>Continuous, Speed Priority</translation>
    </message>
    <message>
        <source>Canon:ContinuousDrive:4</source>
        <translation>Continuous, Low</translation>
    </message>
    <message>
        <source>Canon:ContinuousDrive:5</source>
        <translation>Continuous, High</translation>
    </message>
    <message>
        <source>Canon:ContinuousDrive:6</source>
        <translation>Silent Single</translation>
    </message>
    <message>
        <source>Canon:ContinuousDrive:8</source>
        <translation>Continuous, High+</translation>
    </message>
    <message>
        <source>Canon:ContinuousDrive:9</source>
        <translation>Single, Silent</translation>
    </message>
    <message>
        <source>Canon:ContinuousDrive:10</source>
        <translation>Continuous, Silent</translation>
    </message>
    <message>
        <source>Canon:FocusMode</source>
        <translation>Focus Mode</translation>
    </message>
    <message>
        <source>Canon:FocusMode:0</source>
        <translation>One-shot AF</translation>
    </message>
    <message>
        <source>Canon:FocusMode:1</source>
        <translation>AI Servo AF</translation>
    </message>
    <message>
        <source>Canon:FocusMode:2</source>
        <translation>AI Focus AF</translation>
    </message>
    <message>
        <source>Canon:FocusMode:3</source>
        <translation>Manual Focus (3)</translation>
    </message>
    <message>
        <source>Canon:FocusMode:4</source>
        <translation>Single</translation>
    </message>
    <message>
        <source>Canon:FocusMode:5</source>
        <translation>Continuous</translation>
    </message>
    <message>
        <source>Canon:FocusMode:6</source>
        <translation>Manual Focus (6)</translation>
    </message>
    <message>
        <source>Canon:FocusMode:16</source>
        <translation>Pan Focus</translation>
    </message>
    <message>
        <source>Canon:FocusMode:256</source>
        <translation>One-shot AF (Live View)</translation>
    </message>
    <message>
        <source>Canon:FocusMode:257</source>
        <translation>AI Servo AF (Live View)</translation>
    </message>
    <message>
        <source>Canon:FocusMode:258</source>
        <translation>AI Focus AF (Live View)</translation>
    </message>
    <message>
        <source>Canon:FocusMode:512</source>
        <translation>Movie Snap Focus</translation>
    </message>
    <message>
        <source>Canon:FocusMode:519</source>
        <translation>Movie Servo AF</translation>
    </message>
    <message>
        <source>Canon:RecordMode</source>
        <translation>Record Mode</translation>
    </message>
    <message>
        <source>Canon:RecordMode:1</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Canon:RecordMode:2</source>
        <translation>CRW+THM</translation>
    </message>
    <message>
        <source>Canon:RecordMode:3</source>
        <translation>AVI+THM</translation>
    </message>
    <message>
        <source>Canon:RecordMode:4</source>
        <translation>TIF</translation>
    </message>
    <message>
        <source>Canon:RecordMode:5</source>
        <translation>TIF+JPEG</translation>
    </message>
    <message>
        <source>Canon:RecordMode:6</source>
        <translation>CR2</translation>
    </message>
    <message>
        <source>Canon:RecordMode:7</source>
        <translation>CR2+JPEG</translation>
    </message>
    <message>
        <source>Canon:RecordMode:9</source>
        <translation>MOV</translation>
    </message>
    <message>
        <source>Canon:RecordMode:10</source>
        <translation>MP4</translation>
    </message>
    <message>
        <source>Canon:RecordMode:11</source>
        <translation>CRM</translation>
    </message>
    <message>
        <source>Canon:RecordMode:12</source>
        <translation>CR3</translation>
    </message>
    <message>
        <source>Canon:RecordMode:13</source>
        <translation>CR3+JPEG</translation>
    </message>
    <message>
        <source>Canon:RecordMode:14</source>
        <translation>HIF</translation>
    </message>
    <message>
        <source>Canon:RecordMode:15</source>
        <translation>CR3+HIF</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize</source>
        <translation>Canon Image Size</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:-1</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:0</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:1</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:2</source>
        <translation>Small</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:5</source>
        <translation>Medium 1</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:6</source>
        <translation>Medium 2</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:7</source>
        <translation>Medium 3</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:8</source>
        <translation>Postcard</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:9</source>
        <translation>Widescreen</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:10</source>
        <translation>Medium Widescreen</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:14</source>
        <translation>Small 1</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:15</source>
        <translation>Small 2</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:16</source>
        <translation>Small 3</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:128</source>
        <translation>640x480 Movie</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:129</source>
        <translation>Medium Movie</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:130</source>
        <translation>Small Movie</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:137</source>
        <translation>1280x720 Movie</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:142</source>
        <translation>1920x1080 Movie</translation>
    </message>
    <message>
        <source>Canon:CanonImageSize:143</source>
        <translation>4096x2160 Movie</translation>
    </message>
    <message>
        <source>Canon:EasyMode</source>
        <translation>Easy Mode</translation>
    </message>
    <message>
        <source>Canon:EasyMode:0</source>
        <translation>Full auto</translation>
    </message>
    <message>
        <source>Canon:EasyMode:1</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Canon:EasyMode:2</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Canon:EasyMode:3</source>
        <translation>Fast shutter</translation>
    </message>
    <message>
        <source>Canon:EasyMode:4</source>
        <translation>Slow shutter</translation>
    </message>
    <message>
        <source>Canon:EasyMode:5</source>
        <translation>Night</translation>
    </message>
    <message>
        <source>Canon:EasyMode:6</source>
        <translation>Gray Scale</translation>
    </message>
    <message>
        <source>Canon:EasyMode:7</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Canon:EasyMode:8</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Canon:EasyMode:9</source>
        <translation>Sports</translation>
    </message>
    <message>
        <source>Canon:EasyMode:10</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Canon:EasyMode:11</source>
        <translation>Black &amp; White</translation>
    </message>
    <message>
        <source>Canon:EasyMode:12</source>
        <translation>Pan focus</translation>
    </message>
    <message>
        <source>Canon:EasyMode:13</source>
        <translation>Vivid</translation>
    </message>
    <message>
        <source>Canon:EasyMode:14</source>
        <translation>Neutral</translation>
    </message>
    <message>
        <source>Canon:EasyMode:15</source>
        <translation>Flash Off</translation>
    </message>
    <message>
        <source>Canon:EasyMode:16</source>
        <translation>Long Shutter</translation>
    </message>
    <message>
        <source>Canon:EasyMode:17</source>
        <translation>Super Macro</translation>
    </message>
    <message>
        <source>Canon:EasyMode:18</source>
        <translation>Foliage</translation>
    </message>
    <message>
        <source>Canon:EasyMode:19</source>
        <translation>Indoor</translation>
    </message>
    <message>
        <source>Canon:EasyMode:20</source>
        <translation>Fireworks</translation>
    </message>
    <message>
        <source>Canon:EasyMode:21</source>
        <translation>Beach</translation>
    </message>
    <message>
        <source>Canon:EasyMode:22</source>
        <translation>Underwater</translation>
    </message>
    <message>
        <source>Canon:EasyMode:23</source>
        <translation>Snow</translation>
    </message>
    <message>
        <source>Canon:EasyMode:24</source>
        <translation>Kids &amp; Pets</translation>
    </message>
    <message>
        <source>Canon:EasyMode:25</source>
        <translation>Night Snapshot</translation>
    </message>
    <message>
        <source>Canon:EasyMode:26</source>
        <translation>Digital Macro</translation>
    </message>
    <message>
        <source>Canon:EasyMode:27</source>
        <translation>My Colors</translation>
    </message>
    <message>
        <source>Canon:EasyMode:28</source>
        <translation>Movie Snap</translation>
    </message>
    <message>
        <source>Canon:EasyMode:29</source>
        <translation>Super Macro 2</translation>
    </message>
    <message>
        <source>Canon:EasyMode:30</source>
        <translation>Color Accent</translation>
    </message>
    <message>
        <source>Canon:EasyMode:31</source>
        <translation>Color Swap</translation>
    </message>
    <message>
        <source>Canon:EasyMode:32</source>
        <translation>Aquarium</translation>
    </message>
    <message>
        <source>Canon:EasyMode:33</source>
        <translation>ISO 3200</translation>
    </message>
    <message>
        <source>Canon:EasyMode:34</source>
        <translation>ISO 6400</translation>
    </message>
    <message>
        <source>Canon:EasyMode:35</source>
        <translation>Creative Light Effect</translation>
    </message>
    <message>
        <source>Canon:EasyMode:36</source>
        <translation>Easy</translation>
    </message>
    <message>
        <source>Canon:EasyMode:37</source>
        <translation>Quick Shot</translation>
    </message>
    <message>
        <source>Canon:EasyMode:38</source>
        <translation>Creative Auto</translation>
    </message>
    <message>
        <source>Canon:EasyMode:39</source>
        <translation>Zoom Blur</translation>
    </message>
    <message>
        <source>Canon:EasyMode:40</source>
        <translation>Low Light</translation>
    </message>
    <message>
        <source>Canon:EasyMode:41</source>
        <translation>Nostalgic</translation>
    </message>
    <message>
        <source>Canon:EasyMode:42</source>
        <translation>Super Vivid</translation>
    </message>
    <message>
        <source>Canon:EasyMode:43</source>
        <translation>Poster Effect</translation>
    </message>
    <message>
        <source>Canon:EasyMode:44</source>
        <translation>Face Self-timer</translation>
    </message>
    <message>
        <source>Canon:EasyMode:45</source>
        <translation>Smile</translation>
    </message>
    <message>
        <source>Canon:EasyMode:46</source>
        <translation>Wink Self-timer</translation>
    </message>
    <message>
        <source>Canon:EasyMode:47</source>
        <translation>Fisheye Effect</translation>
    </message>
    <message>
        <source>Canon:EasyMode:48</source>
        <translation>Miniature Effect</translation>
    </message>
    <message>
        <source>Canon:EasyMode:49</source>
        <translation>High-speed Burst</translation>
    </message>
    <message>
        <source>Canon:EasyMode:50</source>
        <translation>Best Image Selection</translation>
    </message>
    <message>
        <source>Canon:EasyMode:51</source>
        <translation>High Dynamic Range</translation>
    </message>
    <message>
        <source>Canon:EasyMode:52</source>
        <translation>Handheld Night Scene</translation>
    </message>
    <message>
        <source>Canon:EasyMode:53</source>
        <translation>Movie Digest</translation>
    </message>
    <message>
        <source>Canon:EasyMode:54</source>
        <translation>Live View Control</translation>
    </message>
    <message>
        <source>Canon:EasyMode:55</source>
        <translation>Discreet</translation>
    </message>
    <message>
        <source>Canon:EasyMode:56</source>
        <translation>Blur Reduction</translation>
    </message>
    <message>
        <source>Canon:EasyMode:57</source>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Canon:EasyMode:58</source>
        <translation>Toy Camera Effect</translation>
    </message>
    <message>
        <source>Canon:EasyMode:59</source>
        <translation>Scene Intelligent Auto</translation>
    </message>
    <message>
        <source>Canon:EasyMode:60</source>
        <translation>High-speed Burst HQ</translation>
    </message>
    <message>
        <source>Canon:EasyMode:61</source>
        <translation>Smooth Skin</translation>
    </message>
    <message>
        <source>Canon:EasyMode:62</source>
        <translation>Soft Focus</translation>
    </message>
    <message>
        <source>Canon:EasyMode:68</source>
        <translation>Food</translation>
    </message>
    <message>
        <source>Canon:EasyMode:84</source>
        <translation>HDR Art Standard</translation>
    </message>
    <message>
        <source>Canon:EasyMode:85</source>
        <translation>HDR Art Vivid</translation>
    </message>
    <message>
        <source>Canon:EasyMode:93</source>
        <translation>HDR Art Bold</translation>
    </message>
    <message>
        <source>Canon:EasyMode:257</source>
        <translation>Spotlight</translation>
    </message>
    <message>
        <source>Canon:EasyMode:258</source>
        <translation>Night 2</translation>
    </message>
    <message>
        <source>Canon:EasyMode:259</source>
        <translation>Night+</translation>
    </message>
    <message>
        <source>Canon:EasyMode:260</source>
        <translation>Super Night</translation>
    </message>
    <message>
        <source>Canon:EasyMode:261</source>
        <translation>Sunset</translation>
    </message>
    <message>
        <source>Canon:EasyMode:263</source>
        <translation>Night Scene</translation>
    </message>
    <message>
        <source>Canon:EasyMode:264</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>Canon:EasyMode:265</source>
        <translation>Low Light 2</translation>
    </message>
    <message>
        <source>Canon:DigitalZoom</source>
        <translation>Digital Zoom</translation>
    </message>
    <message>
        <source>Canon:DigitalZoom:0</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Canon:DigitalZoom:1</source>
        <translation>2x</translation>
    </message>
    <message>
        <source>Canon:DigitalZoom:2</source>
        <translation>4x</translation>
    </message>
    <message>
        <source>Canon:DigitalZoom:3</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>Canon:MeteringMode</source>
        <translation>Metering Mode</translation>
    </message>
    <message>
        <source>Canon:MeteringMode:0</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Canon:MeteringMode:1</source>
        <translation>Spot</translation>
    </message>
    <message>
        <source>Canon:MeteringMode:2</source>
        <translation>Average</translation>
    </message>
    <message>
        <source>Canon:MeteringMode:3</source>
        <translation>Evaluative</translation>
    </message>
    <message>
        <source>Canon:MeteringMode:4</source>
        <translation>Partial</translation>
    </message>
    <message>
        <source>Canon:MeteringMode:5</source>
        <translation>Center-weighted average</translation>
    </message>
    <message>
        <source>Canon:FocusRange</source>
        <translation>Focus Range</translation>
    </message>
    <message>
        <source>Canon:FocusRange:0</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Canon:FocusRange:1</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Canon:FocusRange:2</source>
        <translation>Not Known</translation>
    </message>
    <message>
        <source>Canon:FocusRange:3</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Canon:FocusRange:4</source>
        <translation>Very Close</translation>
    </message>
    <message>
        <source>Canon:FocusRange:5</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Canon:FocusRange:6</source>
        <translation>Middle Range</translation>
    </message>
    <message>
        <source>Canon:FocusRange:7</source>
        <translation>Far Range</translation>
    </message>
    <message>
        <source>Canon:FocusRange:8</source>
        <translation>Pan Focus</translation>
    </message>
    <message>
        <source>Canon:FocusRange:9</source>
        <translation>Super Macro</translation>
    </message>
    <message>
        <source>Canon:FocusRange:10</source>
        <translation>Infinity</translation>
    </message>
    <message>
        <source>Canon:AFPoint</source>
        <translation>AF Point</translation>
    </message>
    <message>
        <source>Canon:AFPoint:8197</source>
        <translation>Manual AF point selection</translation>
    </message>
    <message>
        <source>Canon:AFPoint:12288</source>
        <translation>None (MF)</translation>
    </message>
    <message>
        <source>Canon:AFPoint:12289</source>
        <translation>Auto AF point selection</translation>
    </message>
    <message>
        <source>Canon:AFPoint:12290</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Canon:AFPoint:12291</source>
        <translation>Center</translation>
    </message>
    <message>
        <source>Canon:AFPoint:12292</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Canon:AFPoint:16385</source>
        <translation>Auto AF point selection</translation>
    </message>
    <message>
        <source>Canon:AFPoint:16390</source>
        <translation>Face Detect</translation>
    </message>
    <message>
        <source>Canon:CanonExposureMode</source>
        <translation>Canon Exposure Mode</translation>
    </message>
    <message>
        <source>Canon:CanonExposureMode:0</source>
        <translation>Easy</translation>
    </message>
    <message>
        <source>Canon:CanonExposureMode:1</source>
        <translation>Program AE</translation>
    </message>
    <message>
        <source>Canon:CanonExposureMode:2</source>
        <translation>Shutter speed priority AE</translation>
    </message>
    <message>
        <source>Canon:CanonExposureMode:3</source>
        <translation>Aperture-priority AE</translation>
    </message>
    <message>
        <source>Canon:CanonExposureMode:4</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Canon:CanonExposureMode:5</source>
        <translation>Depth-of-field AE</translation>
    </message>
    <message>
        <source>Canon:CanonExposureMode:6</source>
        <translation>M-Dep</translation>
    </message>
    <message>
        <source>Canon:CanonExposureMode:7</source>
        <translation>Bulb</translation>
    </message>
    <message>
        <source>Canon:CanonExposureMode:8</source>
        <translation>Flexible-priority AE</translation>
    </message>
    <message>
        <source>Canon:LensType</source>
        <translation>Lens Type</translation>
    </message>
    <message>
        <source>Canon:LensType:-1</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:LensType:1</source>
        <translation>Canon EF 50mm f/1.8</translation>
    </message>
    <message>
        <source>Canon:LensType:2</source>
        <translation>Canon EF 28mm f/2.8 or Sigma Lens or Sigma 24mm f/2.8 Super Wide II</translation>
    </message>
    <message>
        <source>Canon:LensType:3</source>
        <translation>Canon EF 135mm f/2.8 Soft</translation>
    </message>
    <message>
        <source>Canon:LensType:4</source>
        <translation>Canon EF 35-105mm f/3.5-4.5 or Sigma Lens or Sigma UC Zoom 35-135mm f/4-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:5</source>
        <translation>Canon EF 35-70mm f/3.5-4.5</translation>
    </message>
    <message>
        <source>Canon:LensType:6</source>
        <translation>Canon EF 28-70mm f/3.5-4.5 or Sigma or Tokina Lens or Sigma 18-50mm f/3.5-5.6 DC or Sigma 18-125mm f/3.5-5.6 DC IF ASP or Tokina AF 193-2 19-35mm f/3.5-4.5 or Sigma 28-80mm f/3.5-5.6 II Macro or Sigma 28-300mm f/3.5-6.3 DG Macro</translation>
    </message>
    <message>
        <source>Canon:LensType:7</source>
        <translation>Canon EF 100-300mm f/5.6L</translation>
    </message>
    <message>
        <source>Canon:LensType:8</source>
        <translation>Canon EF 100-300mm f/5.6 or Sigma or Tokina Lens or Sigma 70-300mm f/4-5.6 [APO] DG Macro or Tokina AT-X 242 AF 24-200mm f/3.5-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:9</source>
        <translation>Canon EF 70-210mm f/4 or Sigma 55-200mm f/4-5.6 DC</translation>
    </message>
    <message>
        <source>Canon:LensType:10</source>
        <translation>Canon EF 50mm f/2.5 Macro or Sigma Lens or Sigma 50mm f/2.8 EX or Sigma 28mm f/1.8 or Sigma 105mm f/2.8 Macro EX or Sigma 70mm f/2.8 EX DG Macro EF</translation>
    </message>
    <message>
        <source>Canon:LensType:11</source>
        <translation>Canon EF 35mm f/2</translation>
    </message>
    <message>
        <source>Canon:LensType:13</source>
        <translation>Canon EF 15mm f/2.8 Fisheye</translation>
    </message>
    <message>
        <source>Canon:LensType:14</source>
        <translation>Canon EF 50-200mm f/3.5-4.5L</translation>
    </message>
    <message>
        <source>Canon:LensType:15</source>
        <translation>Canon EF 50-200mm f/3.5-4.5</translation>
    </message>
    <message>
        <source>Canon:LensType:16</source>
        <translation>Canon EF 35-135mm f/3.5-4.5</translation>
    </message>
    <message>
        <source>Canon:LensType:17</source>
        <translation>Canon EF 35-70mm f/3.5-4.5A</translation>
    </message>
    <message>
        <source>Canon:LensType:18</source>
        <translation>Canon EF 28-70mm f/3.5-4.5</translation>
    </message>
    <message>
        <source>Canon:LensType:20</source>
        <translation>Canon EF 100-200mm f/4.5A</translation>
    </message>
    <message>
        <source>Canon:LensType:21</source>
        <translation>Canon EF 80-200mm f/2.8L</translation>
    </message>
    <message>
        <source>Canon:LensType:22</source>
        <translation>Canon EF 20-35mm f/2.8L or Tokina Lens or Tokina AT-X 280 AF Pro 28-80mm f/2.8 Aspherical</translation>
    </message>
    <message>
        <source>Canon:LensType:23</source>
        <translation>Canon EF 35-105mm f/3.5-4.5</translation>
    </message>
    <message>
        <source>Canon:LensType:24</source>
        <translation>Canon EF 35-80mm f/4-5.6 Power Zoom</translation>
    </message>
    <message>
        <source>Canon:LensType:25</source>
        <translation>Canon EF 35-80mm f/4-5.6 Power Zoom</translation>
    </message>
    <message>
        <source>Canon:LensType:26</source>
        <translation>Canon EF 100mm f/2.8 Macro or Other Lens or Cosina 100mm f/3.5 Macro AF or Tamron SP AF 90mm f/2.8 Di Macro or Tamron SP AF 180mm f/3.5 Di Macro or Carl Zeiss Planar T* 50mm f/1.4 or Voigtlander APO Lanthar 125mm F2.5 SL Macro or Carl Zeiss Planar T 85mm f/1.4 ZE</translation>
    </message>
    <message>
        <source>Canon:LensType:27</source>
        <translation>Canon EF 35-80mm f/4-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:28</source>
        <translation>Canon EF 80-200mm f/4.5-5.6 or Tamron Lens or Tamron SP AF 28-105mm f/2.8 LD Aspherical IF or Tamron SP AF 28-75mm f/2.8 XR Di LD Aspherical [IF] Macro or Tamron AF 70-300mm f/4-5.6 Di LD 1:2 Macro or Tamron AF Aspherical 28-200mm f/3.8-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:29</source>
        <translation>Canon EF 50mm f/1.8 II</translation>
    </message>
    <message>
        <source>Canon:LensType:30</source>
        <translation>Canon EF 35-105mm f/4.5-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:31</source>
        <translation>Canon EF 75-300mm f/4-5.6 or Tamron Lens or Tamron SP AF 300mm f/2.8 LD IF</translation>
    </message>
    <message>
        <source>Canon:LensType:32</source>
        <translation>Canon EF 24mm f/2.8 or Sigma Lens or Sigma 15mm f/2.8 EX Fisheye</translation>
    </message>
    <message>
        <source>Canon:LensType:33</source>
        <translation>Voigtlander or Carl Zeiss Lens or Voigtlander Ultron 40mm f/2 SLII Aspherical or Voigtlander Color Skopar 20mm f/3.5 SLII Aspherical or Voigtlander APO-Lanthar 90mm f/3.5 SLII Close Focus or Carl Zeiss Distagon T* 15mm f/2.8 ZE or Carl Zeiss Distagon T* 18mm f/3.5 ZE or Carl Zeiss Distagon T* 21mm f/2.8 ZE or Carl Zeiss Distagon T* 25mm f/2 ZE or Carl Zeiss Distagon T* 28mm f/2 ZE or Carl Zeiss Distagon T* 35mm f/2 ZE or Carl Zeiss Distagon T* 35mm f/1.4 ZE or Carl Zeiss Planar T* 50mm f/1.4 ZE or Carl Zeiss Makro-Planar T* 50mm f/2 ZE or Carl Zeiss Makro-Planar T* 100mm f/2 ZE or Carl Zeiss Apo-Sonnar T* 135mm f/2 ZE</translation>
    </message>
    <message>
        <source>Canon:LensType:35</source>
        <translation>Canon EF 35-80mm f/4-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:36</source>
        <translation>Canon EF 38-76mm f/4.5-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:37</source>
        <translation>Canon EF 35-80mm f/4-5.6 or Tamron Lens or Tamron 70-200mm f/2.8 Di LD IF Macro or Tamron AF 28-300mm f/3.5-6.3 XR Di VC LD Aspherical [IF] Macro (A20) or Tamron SP AF 17-50mm f/2.8 XR Di II VC LD Aspherical [IF] or Tamron AF 18-270mm f/3.5-6.3 Di II VC LD Aspherical [IF] Macro</translation>
    </message>
    <message>
        <source>Canon:LensType:38</source>
        <translation>Canon EF 80-200mm f/4.5-5.6 II</translation>
    </message>
    <message>
        <source>Canon:LensType:39</source>
        <translation>Canon EF 75-300mm f/4-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:40</source>
        <translation>Canon EF 28-80mm f/3.5-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:41</source>
        <translation>Canon EF 28-90mm f/4-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:42</source>
        <translation>Canon EF 28-200mm f/3.5-5.6 or Tamron Lens or Tamron AF 28-300mm f/3.5-6.3 XR Di VC LD Aspherical [IF] Macro (A20)</translation>
    </message>
    <message>
        <source>Canon:LensType:43</source>
        <translation>Canon EF 28-105mm f/4-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:44</source>
        <translation>Canon EF 90-300mm f/4.5-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:45</source>
        <translation>Canon EF-S 18-55mm f/3.5-5.6 [II]</translation>
    </message>
    <message>
        <source>Canon:LensType:46</source>
        <translation>Canon EF 28-90mm f/4-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:47</source>
        <translation>Zeiss Milvus 35mm f/2 or 50mm f/2 or Zeiss Milvus 50mm f/2 Makro or Zeiss Milvus 135mm f/2 ZE</translation>
    </message>
    <message>
        <source>Canon:LensType:48</source>
        <translation>Canon EF-S 18-55mm f/3.5-5.6 IS</translation>
    </message>
    <message>
        <source>Canon:LensType:49</source>
        <translation>Canon EF-S 55-250mm f/4-5.6 IS</translation>
    </message>
    <message>
        <source>Canon:LensType:50</source>
        <translation>Canon EF-S 18-200mm f/3.5-5.6 IS</translation>
    </message>
    <message>
        <source>Canon:LensType:51</source>
        <translation>Canon EF-S 18-135mm f/3.5-5.6 IS</translation>
    </message>
    <message>
        <source>Canon:LensType:52</source>
        <translation>Canon EF-S 18-55mm f/3.5-5.6 IS II</translation>
    </message>
    <message>
        <source>Canon:LensType:53</source>
        <translation>Canon EF-S 18-55mm f/3.5-5.6 III</translation>
    </message>
    <message>
        <source>Canon:LensType:54</source>
        <translation>Canon EF-S 55-250mm f/4-5.6 IS II</translation>
    </message>
    <message>
        <source>Canon:LensType:60</source>
        <translation>Irix 11mm f/4 or 15mm f/2.4 or Irix 15mm f/2.4</translation>
    </message>
    <message>
        <source>Canon:LensType:63</source>
        <translation>Irix 30mm F1.4 Dragonfly</translation>
    </message>
    <message>
        <source>Canon:LensType:80</source>
        <translation>Canon TS-E 50mm f/2.8L Macro</translation>
    </message>
    <message>
        <source>Canon:LensType:81</source>
        <translation>Canon TS-E 90mm f/2.8L Macro</translation>
    </message>
    <message>
        <source>Canon:LensType:82</source>
        <translation>Canon TS-E 135mm f/4L Macro</translation>
    </message>
    <message>
        <source>Canon:LensType:94</source>
        <translation>Canon TS-E 17mm f/4L</translation>
    </message>
    <message>
        <source>Canon:LensType:95</source>
        <translation>Canon TS-E 24mm f/3.5L II</translation>
    </message>
    <message>
        <source>Canon:LensType:103</source>
        <translation>Samyang AF 14mm f/2.8 EF or Rokinon Lens or Rokinon SP 14mm f/2.4 or Rokinon AF 14mm f/2.8 EF</translation>
    </message>
    <message>
        <source>Canon:LensType:106</source>
        <translation>Rokinon SP / Samyang XP 35mm f/1.2</translation>
    </message>
    <message>
        <source>Canon:LensType:112</source>
        <translation>Sigma 28mm f/1.5 FF High-speed Prime or other Sigma Lens or Sigma 40mm f/1.5 FF High-speed Prime or Sigma 105mm f/1.5 FF High-speed Prime</translation>
    </message>
    <message>
        <source>Canon:LensType:117</source>
        <translation>Tamron 35-150mm f/2.8-4.0 Di VC OSD (A043) or other Tamron Lens or Tamron SP 35mm f/1.4 Di USD (F045)</translation>
    </message>
    <message>
        <source>Canon:LensType:124</source>
        <translation>Canon MP-E 65mm f/2.8 1-5x Macro Photo</translation>
    </message>
    <message>
        <source>Canon:LensType:125</source>
        <translation>Canon TS-E 24mm f/3.5L</translation>
    </message>
    <message>
        <source>Canon:LensType:126</source>
        <translation>Canon TS-E 45mm f/2.8</translation>
    </message>
    <message>
        <source>Canon:LensType:127</source>
        <translation>Canon TS-E 90mm f/2.8 or Tamron Lens or Tamron 18-200mm f/3.5-6.3 Di II VC (B018)</translation>
    </message>
    <message>
        <source>Canon:LensType:129</source>
        <translation>Canon EF 300mm f/2.8L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:130</source>
        <translation>Canon EF 50mm f/1.0L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:131</source>
        <translation>Canon EF 28-80mm f/2.8-4L USM or Sigma Lens or Sigma 8mm f/3.5 EX DG Circular Fisheye or Sigma 17-35mm f/2.8-4 EX DG Aspherical HSM or Sigma 17-70mm f/2.8-4.5 DC Macro or Sigma APO 50-150mm f/2.8 [II] EX DC HSM or Sigma APO 120-300mm f/2.8 EX DG HSM or Sigma 4.5mm f/2.8 EX DC HSM Circular Fisheye or Sigma 70-200mm f/2.8 APO EX HSM or Sigma 28-70mm f/2.8-4 DG</translation>
    </message>
    <message>
        <source>Canon:LensType:132</source>
        <translation>Canon EF 1200mm f/5.6L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:134</source>
        <translation>Canon EF 600mm f/4L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:135</source>
        <translation>Canon EF 200mm f/1.8L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:136</source>
        <translation>Canon EF 300mm f/2.8L USM or Tamron SP 15-30mm f/2.8 Di VC USD (A012)</translation>
    </message>
    <message>
        <source>Canon:LensType:137</source>
        <translation>Canon EF 85mm f/1.2L USM or Sigma or Tamron Lens or Sigma 18-50mm f/2.8-4.5 DC OS HSM or Sigma 50-200mm f/4-5.6 DC OS HSM or Sigma 18-250mm f/3.5-6.3 DC OS HSM or Sigma 24-70mm f/2.8 IF EX DG HSM or Sigma 18-125mm f/3.8-5.6 DC OS HSM or Sigma 17-70mm f/2.8-4 DC Macro OS HSM | C or Sigma 17-50mm f/2.8 OS HSM or Sigma 18-200mm f/3.5-6.3 DC OS HSM [II] or Tamron AF 18-270mm f/3.5-6.3 Di II VC PZD (B008) or Sigma 8-16mm f/4.5-5.6 DC HSM or Tamron SP 17-50mm f/2.8 XR Di II VC (B005) or Tamron SP 60mm f/2 Macro Di II (G005) or Sigma 10-20mm f/3.5 EX DC HSM or Tamron SP 24-70mm f/2.8 Di VC USD or Sigma 18-35mm f/1.8 DC HSM or Sigma 12-24mm f/4.5-5.6 DG HSM II or Sigma 70-300mm f/4-5.6 DG OS</translation>
    </message>
    <message>
        <source>Canon:LensType:138</source>
        <translation>Canon EF 28-80mm f/2.8-4L</translation>
    </message>
    <message>
        <source>Canon:LensType:139</source>
        <translation>Canon EF 400mm f/2.8L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:140</source>
        <translation>Canon EF 500mm f/4.5L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:141</source>
        <translation>Canon EF 500mm f/4.5L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:142</source>
        <translation>Canon EF 300mm f/2.8L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:143</source>
        <translation>Canon EF 500mm f/4L IS USM or Sigma Lens or Sigma 17-70mm f/2.8-4 DC Macro OS HSM</translation>
    </message>
    <message>
        <source>Canon:LensType:144</source>
        <translation>Canon EF 35-135mm f/4-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:145</source>
        <translation>Canon EF 100-300mm f/4.5-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:146</source>
        <translation>Canon EF 70-210mm f/3.5-4.5 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:147</source>
        <translation>Canon EF 35-135mm f/4-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:148</source>
        <translation>Canon EF 28-80mm f/3.5-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:149</source>
        <translation>Canon EF 100mm f/2 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:150</source>
        <translation>Canon EF 14mm f/2.8L USM or Sigma Lens or Sigma 20mm EX f/1.8 or Sigma 30mm f/1.4 DC HSM or Sigma 24mm f/1.8 DG Macro EX or Sigma 28mm f/1.8 DG Macro EX or Sigma 18-35mm f/1.8 DC HSM | A</translation>
    </message>
    <message>
        <source>Canon:LensType:151</source>
        <translation>Canon EF 200mm f/2.8L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:152</source>
        <translation>Canon EF 300mm f/4L IS USM or Sigma Lens or Sigma 12-24mm f/4.5-5.6 EX DG ASPHERICAL HSM or Sigma 14mm f/2.8 EX Aspherical HSM or Sigma 10-20mm f/4-5.6 or Sigma 100-300mm f/4 or Sigma 300-800mm f/5.6 APO EX DG HSM</translation>
    </message>
    <message>
        <source>Canon:LensType:153</source>
        <translation>Canon EF 35-350mm f/3.5-5.6L USM or Sigma or Tamron Lens or Sigma 50-500mm f/4-6.3 APO HSM EX or Tamron AF 28-300mm f/3.5-6.3 XR LD Aspherical [IF] Macro or Tamron AF 18-200mm f/3.5-6.3 XR Di II LD Aspherical [IF] Macro (A14) or Tamron 18-250mm f/3.5-6.3 Di II LD Aspherical [IF] Macro</translation>
    </message>
    <message>
        <source>Canon:LensType:154</source>
        <translation>Canon EF 20mm f/2.8 USM or Zeiss Lens or Zeiss Milvus 21mm f/2.8 or Zeiss Milvus 15mm f/2.8 ZE or Zeiss Milvus 18mm f/2.8 ZE</translation>
    </message>
    <message>
        <source>Canon:LensType:155</source>
        <translation>Canon EF 85mm f/1.8 USM or Sigma Lens or Sigma 14mm f/1.8 DG HSM | A</translation>
    </message>
    <message>
        <source>Canon:LensType:156</source>
        <translation>Canon EF 28-105mm f/3.5-4.5 USM or Tamron Lens or Tamron SP 70-300mm f/4-5.6 Di VC USD (A005) or Tamron SP AF 28-105mm f/2.8 LD Aspherical IF (176D)</translation>
    </message>
    <message>
        <source>Canon:LensType:160</source>
        <translation>Canon EF 20-35mm f/3.5-4.5 USM or Tamron or Tokina Lens or Tamron AF 19-35mm f/3.5-4.5 or Tokina AT-X 124 AF Pro DX 12-24mm f/4 or Tokina AT-X 107 AF DX 10-17mm f/3.5-4.5 Fisheye or Tokina AT-X 116 AF Pro DX 11-16mm f/2.8 or Tokina AT-X 11-20 F2.8 PRO DX Aspherical 11-20mm f/2.8</translation>
    </message>
    <message>
        <source>Canon:LensType:161</source>
        <translation>Canon EF 28-70mm f/2.8L USM or Other Lens or Sigma 24-70mm f/2.8 EX or Sigma 28-70mm f/2.8 EX or Sigma 24-60mm f/2.8 EX DG or Tamron AF 17-50mm f/2.8 Di-II LD Aspherical or Tamron 90mm f/2.8 or Tamron SP AF 17-35mm f/2.8-4 Di LD Aspherical IF (A05) or Tamron SP AF 28-75mm f/2.8 XR Di LD Aspherical [IF] Macro or Tokina AT-X 24-70mm f/2.8 PRO FX (IF)</translation>
    </message>
    <message>
        <source>Canon:LensType:162</source>
        <translation>Canon EF 200mm f/2.8L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:163</source>
        <translation>Canon EF 300mm f/4L</translation>
    </message>
    <message>
        <source>Canon:LensType:164</source>
        <translation>Canon EF 400mm f/5.6L</translation>
    </message>
    <message>
        <source>Canon:LensType:165</source>
        <translation>Canon EF 70-200mm f/2.8L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:166</source>
        <translation>Canon EF 70-200mm f/2.8L USM + 1.4x</translation>
    </message>
    <message>
        <source>Canon:LensType:167</source>
        <translation>Canon EF 70-200mm f/2.8L USM + 2x</translation>
    </message>
    <message>
        <source>Canon:LensType:168</source>
        <translation>Canon EF 28mm f/1.8 USM or Sigma Lens or Sigma 50-100mm f/1.8 DC HSM | A</translation>
    </message>
    <message>
        <source>Canon:LensType:169</source>
        <translation>Canon EF 17-35mm f/2.8L USM or Sigma Lens or Sigma 18-200mm f/3.5-6.3 DC OS or Sigma 15-30mm f/3.5-4.5 EX DG Aspherical or Sigma 18-50mm f/2.8 Macro or Sigma 50mm f/1.4 EX DG HSM or Sigma 85mm f/1.4 EX DG HSM or Sigma 30mm f/1.4 EX DC HSM or Sigma 35mm f/1.4 DG HSM or Sigma 35mm f/1.5 FF High-Speed Prime | 017 or Sigma 70mm f/2.8 Macro EX DG</translation>
    </message>
    <message>
        <source>Canon:LensType:170</source>
        <translation>Canon EF 200mm f/2.8L II USM or Sigma Lens or Sigma 300mm f/2.8 APO EX DG HSM or Sigma 800mm f/5.6 APO EX DG HSM</translation>
    </message>
    <message>
        <source>Canon:LensType:171</source>
        <translation>Canon EF 300mm f/4L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:172</source>
        <translation>Canon EF 400mm f/5.6L USM or Sigma Lens or Sigma 150-600mm f/5-6.3 DG OS HSM | S or Sigma 500mm f/4.5 APO EX DG HSM</translation>
    </message>
    <message>
        <source>Canon:LensType:173</source>
        <translation>Canon EF 180mm Macro f/3.5L USM or Sigma Lens or Sigma 180mm EX HSM Macro f/3.5 or Sigma APO Macro 150mm f/2.8 EX DG HSM or Sigma 10mm f/2.8 EX DC Fisheye or Sigma 15mm f/2.8 EX DG Diagonal Fisheye or Venus Laowa 100mm F2.8 2X Ultra Macro APO</translation>
    </message>
    <message>
        <source>Canon:LensType:174</source>
        <translation>Canon EF 135mm f/2L USM or Other Lens or Sigma 70-200mm f/2.8 EX DG APO OS HSM or Sigma 50-500mm f/4.5-6.3 APO DG OS HSM or Sigma 150-500mm f/5-6.3 APO DG OS HSM or Zeiss Milvus 100mm f/2 Makro or Sigma APO 50-150mm f/2.8 EX DC OS HSM or Sigma APO 120-300mm f/2.8 EX DG OS HSM or Sigma 120-300mm f/2.8 DG OS HSM S013 or Sigma 120-400mm f/4.5-5.6 APO DG OS HSM or Sigma 200-500mm f/2.8 APO EX DG</translation>
    </message>
    <message>
        <source>Canon:LensType:175</source>
        <translation>Canon EF 400mm f/2.8L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:176</source>
        <translation>Canon EF 24-85mm f/3.5-4.5 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:177</source>
        <translation>Canon EF 300mm f/4L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:178</source>
        <translation>Canon EF 28-135mm f/3.5-5.6 IS</translation>
    </message>
    <message>
        <source>Canon:LensType:179</source>
        <translation>Canon EF 24mm f/1.4L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:180</source>
        <translation>Canon EF 35mm f/1.4L USM or Other Lens or Sigma 50mm f/1.4 DG HSM | A or Sigma 24mm f/1.4 DG HSM | A or Zeiss Milvus 50mm f/1.4 or Zeiss Milvus 85mm f/1.4 or Zeiss Otus 28mm f/1.4 ZE or Sigma 24mm f/1.5 FF High-Speed Prime | 017 or Sigma 50mm f/1.5 FF High-Speed Prime | 017 or Sigma 85mm f/1.5 FF High-Speed Prime | 017 or Tokina Opera 50mm f/1.4 FF or Sigma 20mm f/1.4 DG HSM | A</translation>
    </message>
    <message>
        <source>Canon:LensType:181</source>
        <translation>Canon EF 100-400mm f/4.5-5.6L IS USM + 1.4x or Sigma Lens or Sigma 150-600mm f/5-6.3 DG OS HSM | S + 1.4x</translation>
    </message>
    <message>
        <source>Canon:LensType:182</source>
        <translation>Canon EF 100-400mm f/4.5-5.6L IS USM + 2x or Sigma Lens or Sigma 150-600mm f/5-6.3 DG OS HSM | S + 2x</translation>
    </message>
    <message>
        <source>Canon:LensType:183</source>
        <translation>Canon EF 100-400mm f/4.5-5.6L IS USM or Sigma Lens or Sigma 150mm f/2.8 EX DG OS HSM APO Macro or Sigma 105mm f/2.8 EX DG OS HSM Macro or Sigma 180mm f/2.8 EX DG OS HSM APO Macro or Sigma 150-600mm f/5-6.3 DG OS HSM | C or Sigma 150-600mm f/5-6.3 DG OS HSM | S or Sigma 100-400mm f/5-6.3 DG OS HSM or Sigma 180mm f/3.5 APO Macro EX DG IF HSM</translation>
    </message>
    <message>
        <source>Canon:LensType:184</source>
        <translation>Canon EF 400mm f/2.8L USM + 2x</translation>
    </message>
    <message>
        <source>Canon:LensType:185</source>
        <translation>Canon EF 600mm f/4L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:186</source>
        <translation>Canon EF 70-200mm f/4L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:187</source>
        <translation>Canon EF 70-200mm f/4L USM + 1.4x</translation>
    </message>
    <message>
        <source>Canon:LensType:188</source>
        <translation>Canon EF 70-200mm f/4L USM + 2x</translation>
    </message>
    <message>
        <source>Canon:LensType:189</source>
        <translation>Canon EF 70-200mm f/4L USM + 2.8x</translation>
    </message>
    <message>
        <source>Canon:LensType:190</source>
        <translation>Canon EF 100mm f/2.8 Macro USM</translation>
    </message>
    <message>
        <source>Canon:LensType:191</source>
        <translation>Canon EF 400mm f/4 DO IS or Sigma Lens or Sigma 500mm f/4 DG OS HSM</translation>
    </message>
    <message>
        <source>Canon:LensType:193</source>
        <translation>Canon EF 35-80mm f/4-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:194</source>
        <translation>Canon EF 80-200mm f/4.5-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:195</source>
        <translation>Canon EF 35-105mm f/4.5-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:196</source>
        <translation>Canon EF 75-300mm f/4-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:197</source>
        <translation>Canon EF 75-300mm f/4-5.6 IS USM or Sigma Lens or Sigma 18-300mm f/3.5-6.3 DC Macro OS HSM</translation>
    </message>
    <message>
        <source>Canon:LensType:198</source>
        <translation>Canon EF 50mm f/1.4 USM or Other Lens or Zeiss Otus 55mm f/1.4 ZE or Zeiss Otus 85mm f/1.4 ZE or Zeiss Milvus 25mm f/1.4 or Zeiss Otus 100mm f/1.4 or Zeiss Milvus 35mm f/1.4 ZE or Yongnuo YN 35mm f/2</translation>
    </message>
    <message>
        <source>Canon:LensType:199</source>
        <translation>Canon EF 28-80mm f/3.5-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:200</source>
        <translation>Canon EF 75-300mm f/4-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:201</source>
        <translation>Canon EF 28-80mm f/3.5-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:202</source>
        <translation>Canon EF 28-80mm f/3.5-5.6 USM IV</translation>
    </message>
    <message>
        <source>Canon:LensType:208</source>
        <translation>Canon EF 22-55mm f/4-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:209</source>
        <translation>Canon EF 55-200mm f/4.5-5.6</translation>
    </message>
    <message>
        <source>Canon:LensType:210</source>
        <translation>Canon EF 28-90mm f/4-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:211</source>
        <translation>Canon EF 28-200mm f/3.5-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:212</source>
        <translation>Canon EF 28-105mm f/4-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:213</source>
        <translation>Canon EF 90-300mm f/4.5-5.6 USM or Tamron Lens or Tamron SP 150-600mm f/5-6.3 Di VC USD (A011) or Tamron 16-300mm f/3.5-6.3 Di II VC PZD Macro (B016) or Tamron SP 35mm f/1.8 Di VC USD (F012) or Tamron SP 45mm f/1.8 Di VC USD (F013)</translation>
    </message>
    <message>
        <source>Canon:LensType:214</source>
        <translation>Canon EF-S 18-55mm f/3.5-5.6 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:215</source>
        <translation>Canon EF 55-200mm f/4.5-5.6 II USM</translation>
    </message>
    <message>
        <source>Canon:LensType:217</source>
        <translation>Tamron AF 18-270mm f/3.5-6.3 Di II VC PZD</translation>
    </message>
    <message>
        <source>Canon:LensType:220</source>
        <translation>Yongnuo YN 50mm f/1.8</translation>
    </message>
    <message>
        <source>Canon:LensType:224</source>
        <translation>Canon EF 70-200mm f/2.8L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:225</source>
        <translation>Canon EF 70-200mm f/2.8L IS USM + 1.4x</translation>
    </message>
    <message>
        <source>Canon:LensType:226</source>
        <translation>Canon EF 70-200mm f/2.8L IS USM + 2x</translation>
    </message>
    <message>
        <source>Canon:LensType:227</source>
        <translation>Canon EF 70-200mm f/2.8L IS USM + 2.8x</translation>
    </message>
    <message>
        <source>Canon:LensType:228</source>
        <translation>Canon EF 28-105mm f/3.5-4.5 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:229</source>
        <translation>Canon EF 16-35mm f/2.8L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:230</source>
        <translation>Canon EF 24-70mm f/2.8L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:231</source>
        <translation>Canon EF 17-40mm f/4L USM or Sigma Lens or Sigma 12-24mm f/4 DG HSM A016</translation>
    </message>
    <message>
        <source>Canon:LensType:232</source>
        <translation>Canon EF 70-300mm f/4.5-5.6 DO IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:233</source>
        <translation>Canon EF 28-300mm f/3.5-5.6L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:234</source>
        <translation>Canon EF-S 17-85mm f/4-5.6 IS USM or Tokina Lens or Tokina AT-X 12-28 PRO DX 12-28mm f/4</translation>
    </message>
    <message>
        <source>Canon:LensType:235</source>
        <translation>Canon EF-S 10-22mm f/3.5-4.5 USM</translation>
    </message>
    <message>
        <source>Canon:LensType:236</source>
        <translation>Canon EF-S 60mm f/2.8 Macro USM</translation>
    </message>
    <message>
        <source>Canon:LensType:237</source>
        <translation>Canon EF 24-105mm f/4L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:238</source>
        <translation>Canon EF 70-300mm f/4-5.6 IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:239</source>
        <translation>Canon EF 85mm f/1.2L II USM or Rokinon Lens or Rokinon SP 85mm f/1.2</translation>
    </message>
    <message>
        <source>Canon:LensType:240</source>
        <translation>Canon EF-S 17-55mm f/2.8 IS USM or Sigma Lens or Sigma 17-50mm f/2.8 EX DC OS HSM</translation>
    </message>
    <message>
        <source>Canon:LensType:241</source>
        <translation>Canon EF 50mm f/1.2L USM</translation>
    </message>
    <message>
        <source>Canon:LensType:242</source>
        <translation>Canon EF 70-200mm f/4L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:243</source>
        <translation>Canon EF 70-200mm f/4L IS USM + 1.4x</translation>
    </message>
    <message>
        <source>Canon:LensType:244</source>
        <translation>Canon EF 70-200mm f/4L IS USM + 2x</translation>
    </message>
    <message>
        <source>Canon:LensType:245</source>
        <translation>Canon EF 70-200mm f/4L IS USM + 2.8x</translation>
    </message>
    <message>
        <source>Canon:LensType:246</source>
        <translation>Canon EF 16-35mm f/2.8L II USM</translation>
    </message>
    <message>
        <source>Canon:LensType:247</source>
        <translation>Canon EF 14mm f/2.8L II USM</translation>
    </message>
    <message>
        <source>Canon:LensType:248</source>
        <translation>Canon EF 200mm f/2L IS USM or Sigma Lens or Sigma 24-35mm f/2 DG HSM | A or Sigma 135mm f/2 FF High-Speed Prime | 017 or Sigma 24-35mm f/2.2 FF Zoom | 017 or Sigma 135mm f/1.8 DG HSM A017</translation>
    </message>
    <message>
        <source>Canon:LensType:249</source>
        <translation>Canon EF 800mm f/5.6L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:250</source>
        <translation>Canon EF 24mm f/1.4L II USM or Sigma Lens or Sigma 20mm f/1.4 DG HSM | A or Sigma 20mm f/1.5 FF High-Speed Prime | 017 or Tokina Opera 16-28mm f/2.8 FF or Sigma 85mm f/1.4 DG HSM A016</translation>
    </message>
    <message>
        <source>Canon:LensType:251</source>
        <translation>Canon EF 70-200mm f/2.8L IS II USM or Canon EF 70-200mm f/2.8L IS III USM</translation>
    </message>
    <message>
        <source>Canon:LensType:252</source>
        <translation>Canon EF 70-200mm f/2.8L IS II USM + 1.4x or Canon EF 70-200mm f/2.8L IS III USM + 1.4x</translation>
    </message>
    <message>
        <source>Canon:LensType:253</source>
        <translation>Canon EF 70-200mm f/2.8L IS II USM + 2x or Canon EF 70-200mm f/2.8L IS III USM + 2x</translation>
    </message>
    <message>
        <source>Canon:LensType:254</source>
        <translation>Canon EF 100mm f/2.8L Macro IS USM or Tamron Lens or Tamron SP 90mm f/2.8 Di VC USD 1:1 Macro (F017)</translation>
    </message>
    <message>
        <source>Canon:LensType:255</source>
        <translation>Sigma 24-105mm f/4 DG OS HSM | A or Other Lens or Sigma 180mm f/2.8 EX DG OS HSM APO Macro or Tamron SP 70-200mm f/2.8 Di VC USD or Yongnuo YN 50mm f/1.8</translation>
    </message>
    <message>
        <source>Canon:LensType:368</source>
        <translation>Sigma 14-24mm f/2.8 DG HSM | A or other Sigma Lens or Sigma 20mm f/1.4 DG HSM | A or Sigma 50mm f/1.4 DG HSM | A or Sigma 40mm f/1.4 DG HSM | A or Sigma 60-600mm f/4.5-6.3 DG OS HSM | S or Sigma 28mm f/1.4 DG HSM | A or Sigma 150-600mm f/5-6.3 DG OS HSM | S or Sigma 85mm f/1.4 DG HSM | A or Sigma 105mm f/1.4 DG HSM or Sigma 14-24mm f/2.8 DG HSM or Sigma 35mm f/1.4 DG HSM | A or Sigma 70mm f/2.8 DG Macro or Sigma 18-35mm f/1.8 DC HSM | A or Sigma 24-105mm f/4 DG OS HSM | A or Sigma 18-300mm f/3.5-6.3 DC Macro OS HSM | C or Sigma 24mm F1.4 DG HSM | A</translation>
    </message>
    <message>
        <source>Canon:LensType:488</source>
        <translation>Canon EF-S 15-85mm f/3.5-5.6 IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:489</source>
        <translation>Canon EF 70-300mm f/4-5.6L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:490</source>
        <translation>Canon EF 8-15mm f/4L Fisheye USM</translation>
    </message>
    <message>
        <source>Canon:LensType:491</source>
        <translation>Canon EF 300mm f/2.8L IS II USM or Tamron Lens or Tamron SP 70-200mm f/2.8 Di VC USD G2 (A025) or Tamron 18-400mm f/3.5-6.3 Di II VC HLD (B028) or Tamron 100-400mm f/4.5-6.3 Di VC USD (A035) or Tamron 70-210mm f/4 Di VC USD (A034) or Tamron 70-210mm f/4 Di VC USD (A034) + 1.4x or Tamron SP 24-70mm f/2.8 Di VC USD G2 (A032)</translation>
    </message>
    <message>
        <source>Canon:LensType:492</source>
        <translation>Canon EF 400mm f/2.8L IS II USM</translation>
    </message>
    <message>
        <source>Canon:LensType:493</source>
        <translation>Canon EF 500mm f/4L IS II USM or EF 24-105mm f4L IS USM or Canon EF 24-105mm f/4L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:494</source>
        <translation>Canon EF 600mm f/4L IS II USM</translation>
    </message>
    <message>
        <source>Canon:LensType:495</source>
        <translation>Canon EF 24-70mm f/2.8L II USM or Sigma Lens or Sigma 24-70mm f/2.8 DG OS HSM | A</translation>
    </message>
    <message>
        <source>Canon:LensType:496</source>
        <translation>Canon EF 200-400mm f/4L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:499</source>
        <translation>Canon EF 200-400mm f/4L IS USM + 1.4x</translation>
    </message>
    <message>
        <source>Canon:LensType:502</source>
        <translation>Canon EF 28mm f/2.8 IS USM or Tamron Lens or Tamron 35mm f/1.8 Di VC USD (F012)</translation>
    </message>
    <message>
        <source>Canon:LensType:503</source>
        <translation>Canon EF 24mm f/2.8 IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:504</source>
        <translation>Canon EF 24-70mm f/4L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:505</source>
        <translation>Canon EF 35mm f/2 IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:506</source>
        <translation>Canon EF 400mm f/4 DO IS II USM</translation>
    </message>
    <message>
        <source>Canon:LensType:507</source>
        <translation>Canon EF 16-35mm f/4L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:508</source>
        <translation>Canon EF 11-24mm f/4L USM or Tamron Lens or Tamron 10-24mm f/3.5-4.5 Di II VC HLD (B023)</translation>
    </message>
    <message>
        <source>Canon:LensType:624</source>
        <translation>Sigma 70-200mm f/2.8 DG OS HSM | S or other Sigma Lens or Sigma 150-600mm f/5-6.3 | C</translation>
    </message>
    <message>
        <source>Canon:LensType:747</source>
        <translation>Canon EF 100-400mm f/4.5-5.6L IS II USM or Tamron Lens or Tamron SP 150-600mm f/5-6.3 Di VC USD G2</translation>
    </message>
    <message>
        <source>Canon:LensType:748</source>
        <translation>Canon EF 100-400mm f/4.5-5.6L IS II USM + 1.4x or Tamron Lens or Tamron 100-400mm f/4.5-6.3 Di VC USD A035E + 1.4x or Tamron 70-210mm f/4 Di VC USD (A034) + 2x</translation>
    </message>
    <message>
        <source>Canon:LensType:749</source>
        <translation>Canon EF 100-400mm f/4.5-5.6L IS II USM + 2x or Tamron Lens or Tamron 100-400mm f/4.5-6.3 Di VC USD A035E + 2x</translation>
    </message>
    <message>
        <source>Canon:LensType:750</source>
        <translation>Canon EF 35mm f/1.4L II USM or Tamron Lens or Tamron SP 85mm f/1.8 Di VC USD (F016) or Tamron SP 45mm f/1.8 Di VC USD (F013)</translation>
    </message>
    <message>
        <source>Canon:LensType:751</source>
        <translation>Canon EF 16-35mm f/2.8L III USM</translation>
    </message>
    <message>
        <source>Canon:LensType:752</source>
        <translation>Canon EF 24-105mm f/4L IS II USM</translation>
    </message>
    <message>
        <source>Canon:LensType:753</source>
        <translation>Canon EF 85mm f/1.4L IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:754</source>
        <translation>Canon EF 70-200mm f/4L IS II USM</translation>
    </message>
    <message>
        <source>Canon:LensType:757</source>
        <translation>Canon EF 400mm f/2.8L IS III USM</translation>
    </message>
    <message>
        <source>Canon:LensType:758</source>
        <translation>Canon EF 600mm f/4L IS III USM</translation>
    </message>
    <message>
        <source>Canon:LensType:923</source>
        <translation>Meike/SKY 85mm f/1.8 DCM</translation>
    </message>
    <message>
        <source>Canon:LensType:1136</source>
        <translation>Sigma 24-70mm f/2.8 DG OS HSM | A</translation>
    </message>
    <message>
        <source>Canon:LensType:4142</source>
        <translation>Canon EF-S 18-135mm f/3.5-5.6 IS STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4143</source>
        <translation>Canon EF-M 18-55mm f/3.5-5.6 IS STM or Tamron Lens or Tamron 18-200mm f/3.5-6.3 Di III VC</translation>
    </message>
    <message>
        <source>Canon:LensType:4144</source>
        <translation>Canon EF 40mm f/2.8 STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4145</source>
        <translation>Canon EF-M 22mm f/2 STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4146</source>
        <translation>Canon EF-S 18-55mm f/3.5-5.6 IS STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4147</source>
        <translation>Canon EF-M 11-22mm f/4-5.6 IS STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4148</source>
        <translation>Canon EF-S 55-250mm f/4-5.6 IS STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4149</source>
        <translation>Canon EF-M 55-200mm f/4.5-6.3 IS STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4150</source>
        <translation>Canon EF-S 10-18mm f/4.5-5.6 IS STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4152</source>
        <translation>Canon EF 24-105mm f/3.5-5.6 IS STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4153</source>
        <translation>Canon EF-M 15-45mm f/3.5-6.3 IS STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4154</source>
        <translation>Canon EF-S 24mm f/2.8 STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4155</source>
        <translation>Canon EF-M 28mm f/3.5 Macro IS STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4156</source>
        <translation>Canon EF 50mm f/1.8 STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4157</source>
        <translation>Canon EF-M 18-150mm f/3.5-6.3 IS STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4158</source>
        <translation>Canon EF-S 18-55mm f/4-5.6 IS STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4159</source>
        <translation>Canon EF-M 32mm f/1.4 STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4160</source>
        <translation>Canon EF-S 35mm f/2.8 Macro IS STM</translation>
    </message>
    <message>
        <source>Canon:LensType:4208</source>
        <translation>Sigma 56mm f/1.4 DC DN | C or other Sigma Lens or Sigma 30mm F1.4 DC DN | C</translation>
    </message>
    <message>
        <source>Canon:LensType:4976</source>
        <translation>Sigma 16-300mm F3.5-6.7 DC OS | C (025)</translation>
    </message>
    <message>
        <source>Canon:LensType:6512</source>
        <translation>Sigma 12mm F1.4 DC | C</translation>
    </message>
    <message>
        <source>Canon:LensType:36910</source>
        <translation>Canon EF 70-300mm f/4-5.6 IS II USM</translation>
    </message>
    <message>
        <source>Canon:LensType:36912</source>
        <translation>Canon EF-S 18-135mm f/3.5-5.6 IS USM</translation>
    </message>
    <message>
        <source>Canon:LensType:61182</source>
        <translation>Canon RF 50mm F1.2L USM or other Canon RF Lens or Canon RF 24-105mm F4L IS USM or Canon RF 28-70mm F2L USM or Canon RF 35mm F1.8 MACRO IS STM or Canon RF 85mm F1.2L USM or Canon RF 85mm F1.2L USM DS or Canon RF 24-70mm F2.8L IS USM or Canon RF 15-35mm F2.8L IS USM or Canon RF 24-240mm F4-6.3 IS USM or Canon RF 70-200mm F2.8L IS USM or Canon RF 85mm F2 MACRO IS STM or Canon RF 600mm F11 IS STM or Canon RF 600mm F11 IS STM + RF1.4x or Canon RF 600mm F11 IS STM + RF2x or Canon RF 800mm F11 IS STM or Canon RF 800mm F11 IS STM + RF1.4x or Canon RF 800mm F11 IS STM + RF2x or Canon RF 24-105mm F4-7.1 IS STM or Canon RF 100-500mm F4.5-7.1L IS USM or Canon RF 100-500mm F4.5-7.1L IS USM + RF1.4x or Canon RF 100-500mm F4.5-7.1L IS USM + RF2x or Canon RF 70-200mm F4L IS USM or Canon RF 100mm F2.8L MACRO IS USM or Canon RF 50mm F1.8 STM or Canon RF 14-35mm F4L IS USM or Canon RF-S 18-45mm F4.5-6.3 IS STM or Canon RF 100-400mm F5.6-8 IS USM or Canon RF 100-400mm F5.6-8 IS USM + RF1.4x or Canon RF 100-400mm F5.6-8 IS USM + RF2x or Canon RF-S 18-150mm F3.5-6.3 IS STM or Canon RF 24mm F1.8 MACRO IS STM or Canon RF 16mm F2.8 STM or Canon RF 400mm F2.8L IS USM or Canon RF 400mm F2.8L IS USM + RF1.4x or Canon RF 400mm F2.8L IS USM + RF2x or Canon RF 600mm F4L IS USM or Canon RF 600mm F4L IS USM + RF1.4x or Canon RF 600mm F4L IS USM + RF2x or Canon RF 800mm F5.6L IS USM or Canon RF 800mm F5.6L IS USM + RF1.4x or Canon RF 800mm F5.6L IS USM + RF2x or Canon RF 1200mm F8L IS USM or Canon RF 1200mm F8L IS USM + RF1.4x or Canon RF 1200mm F8L IS USM + RF2x or Canon RF 5.2mm F2.8L Dual Fisheye 3D VR or Canon RF 15-30mm F4.5-6.3 IS STM or Canon RF 135mm F1.8 L IS USM or Canon RF 24-50mm F4.5-6.3 IS STM or Canon RF-S 55-210mm F5-7.1 IS STM or Canon RF 100-300mm F2.8L IS USM or Canon RF 100-300mm F2.8L IS USM + RF1.4x or Canon RF 100-300mm F2.8L IS USM + RF2x or Canon RF 10-20mm F4 L IS STM or Canon RF 28mm F2.8 STM or Canon RF 24-105mm F2.8 L IS USM Z or Canon RF-S 10-18mm F4.5-6.3 IS STM or Canon RF 35mm F1.4 L VCM or Canon RF 70-200mm F2.8 L IS USM Z or Canon RF 70-200mm F2.8 L IS USM Z + RF1.4x or Canon RF 70-200mm F2.8 L IS USM Z + RF2x or Canon RF 16-28mm F2.8 IS STM or Canon RF-S 14-30mm F4-6.3 IS STM PZ or Canon RF 50mm F1.4 L VCM or Canon RF 24mm F1.4 L VCM or Canon RF 20mm F1.4 L VCM or Canon RF 85mm F1.4 L VCM or Canon RF 20-50mm F4 L IS USM PZ or Canon RF 45mm F1.2 STM or Canon RF 7-14mm F2.8-3.5 L FISHEYE STM or Canon RF 14mm F1.4 L VCM</translation>
    </message>
    <message>
        <source>Canon:LensType:61491</source>
        <translation>Canon CN-E 14mm T3.1 L F</translation>
    </message>
    <message>
        <source>Canon:LensType:61492</source>
        <translation>Canon CN-E 24mm T1.5 L F</translation>
    </message>
    <message>
        <source>Canon:LensType:61494</source>
        <translation>Canon CN-E 85mm T1.3 L F</translation>
    </message>
    <message>
        <source>Canon:LensType:61495</source>
        <translation>Canon CN-E 135mm T2.2 L F</translation>
    </message>
    <message>
        <source>Canon:LensType:61496</source>
        <translation>Canon CN-E 35mm T1.5 L F</translation>
    </message>
    <message>
        <source>Canon:LensType:65535</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:MaxFocalLength</source>
        <translation>Max Focal Length</translation>
    </message>
    <message>
        <source>Canon:MinFocalLength</source>
        <translation>Min Focal Length</translation>
    </message>
    <message>
        <source>Canon:FlashModel</source>
        <translation>Flash Model</translation>
    </message>
    <message>
        <source>Canon:FlashModel:0</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:FlashModel:4</source>
        <translation>Speedlite 540EZ</translation>
    </message>
    <message>
        <source>Canon:FlashModel:5</source>
        <translation>Speedlite 380EX</translation>
    </message>
    <message>
        <source>Canon:FlashModel:6</source>
        <translation>Speedlite 550EX</translation>
    </message>
    <message>
        <source>Canon:FlashModel:8</source>
        <translation>Speedlite ST-E2</translation>
    </message>
    <message>
        <source>Canon:FlashModel:9</source>
        <translation>Speedlite MR-14EX</translation>
    </message>
    <message>
        <source>Canon:FlashModel:12</source>
        <translation>Speedlite 580EX</translation>
    </message>
    <message>
        <source>Canon:FlashModel:13</source>
        <translation>Speedlite 430EX</translation>
    </message>
    <message>
        <source>Canon:FlashModel:17</source>
        <translation>Speedlite 580EX II</translation>
    </message>
    <message>
        <source>Canon:FlashModel:18</source>
        <translation>Speedlite 430EX II</translation>
    </message>
    <message>
        <source>Canon:FlashModel:22</source>
        <translation>Speedlite 600EX-RT</translation>
    </message>
    <message>
        <source>Canon:FlashModel:23</source>
        <translation>Speedlite 600EX II-RT</translation>
    </message>
    <message>
        <source>Canon:FlashModel:24</source>
        <translation>Speedlite 90EX</translation>
    </message>
    <message>
        <source>Canon:FlashModel:25</source>
        <translation>Speedlite 430EX III-RT</translation>
    </message>
    <message>
        <source>Canon:FlashModel:31</source>
        <translation>Speedlite EL-1 ver2</translation>
    </message>
    <message>
        <source>Canon:FlashModel:33</source>
        <translation>Speedlite EL-5</translation>
    </message>
    <message>
        <source>Canon:FlashModel:34</source>
        <translation>Speedlite EL-10</translation>
    </message>
    <message>
        <source>Canon:FocusContinuous</source>
        <translation>Focus Continuous</translation>
    </message>
    <message>
        <source>Canon:FocusContinuous:0</source>
        <translation>Single</translation>
    </message>
    <message>
        <source>Canon:FocusContinuous:1</source>
        <translation>Continuous</translation>
    </message>
    <message>
        <source>Canon:FocusContinuous:8</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Canon:AESetting</source>
        <translation>AE Setting</translation>
    </message>
    <message>
        <source>Canon:AESetting:0</source>
        <translation>Normal AE</translation>
    </message>
    <message>
        <source>Canon:AESetting:1</source>
        <translation>Exposure Compensation</translation>
    </message>
    <message>
        <source>Canon:AESetting:2</source>
        <translation>AE Lock</translation>
    </message>
    <message>
        <source>Canon:AESetting:3</source>
        <translation>AE Lock + Exposure Comp.</translation>
    </message>
    <message>
        <source>Canon:AESetting:4</source>
        <translation>No AE</translation>
    </message>
    <message>
        <source>Canon:ImageStabilization</source>
        <translation>Image Stabilization</translation>
    </message>
    <message>
        <source>Canon:ImageStabilization:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Canon:ImageStabilization:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Canon:ImageStabilization:2</source>
        <translation>Shoot Only</translation>
    </message>
    <message>
        <source>Canon:ImageStabilization:3</source>
        <translation>Panning</translation>
    </message>
    <message>
        <source>Canon:ImageStabilization:4</source>
        <translation>Dynamic</translation>
    </message>
    <message>
        <source>Canon:ImageStabilization:256</source>
        <translation>Off (2)</translation>
    </message>
    <message>
        <source>Canon:ImageStabilization:257</source>
        <translation>On (2)</translation>
    </message>
    <message>
        <source>Canon:ImageStabilization:258</source>
        <translation>Shoot Only (2)</translation>
    </message>
    <message>
        <source>Canon:ImageStabilization:259</source>
        <translation>Panning (2)</translation>
    </message>
    <message>
        <source>Canon:ImageStabilization:260</source>
        <translation>Dynamic (2)</translation>
    </message>
    <message>
        <source>Canon:SpotMeteringMode</source>
        <translation>Spot Metering Mode</translation>
    </message>
    <message>
        <source>Canon:SpotMeteringMode:0</source>
        <translation>Center</translation>
    </message>
    <message>
        <source>Canon:SpotMeteringMode:1</source>
        <translation>AF Point</translation>
    </message>
    <message>
        <source>Canon:PhotoEffect</source>
        <translation>Photo Effect</translation>
    </message>
    <message>
        <source>Canon:PhotoEffect:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Canon:PhotoEffect:1</source>
        <translation>Vivid</translation>
    </message>
    <message>
        <source>Canon:PhotoEffect:2</source>
        <translation>Neutral</translation>
    </message>
    <message>
        <source>Canon:PhotoEffect:3</source>
        <translation>Smooth</translation>
    </message>
    <message>
        <source>Canon:PhotoEffect:4</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Canon:PhotoEffect:5</source>
        <translation>B&amp;W</translation>
    </message>
    <message>
        <source>Canon:PhotoEffect:6</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Canon:PhotoEffect:100</source>
        <translation>My Color Data</translation>
    </message>
    <message>
        <source>Canon:ManualFlashOutput</source>
        <translation>Manual Flash Output</translation>
    </message>
    <message>
        <source>Canon:ManualFlashOutput:0</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:ManualFlashOutput:1280</source>
        <translation>Full</translation>
    </message>
    <message>
        <source>Canon:ManualFlashOutput:1282</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Canon:ManualFlashOutput:1284</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Canon:ManualFlashOutput:32767</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:SRAWQuality</source>
        <translation>SRAW Quality</translation>
    </message>
    <message>
        <source>Canon:SRAWQuality:0</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:SRAWQuality:1</source>
        <translation>sRAW1 (mRAW)</translation>
    </message>
    <message>
        <source>Canon:SRAWQuality:2</source>
        <translation>sRAW2 (sRAW)</translation>
    </message>
    <message>
        <source>Canon:BaseISO</source>
        <translation>Base ISO</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance</source>
        <translation>White Balance</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:0</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:1</source>
        <translation>Daylight</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:2</source>
        <translation>Cloudy</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:3</source>
        <translation>Tungsten</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:4</source>
        <translation>Fluorescent</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:5</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:6</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:7</source>
        <translation>Black &amp; White</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:8</source>
        <translation>Shade</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:9</source>
        <translation>Manual Temperature (Kelvin)</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:10</source>
        <translation>PC Set1</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:11</source>
        <translation>PC Set2</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:12</source>
        <translation>PC Set3</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:14</source>
        <translation>Daylight Fluorescent</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:15</source>
        <translation>Custom 1</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:16</source>
        <translation>Custom 2</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:17</source>
        <translation>Underwater</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:18</source>
        <translation>Custom 3</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:19</source>
        <translation>Custom 4</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:20</source>
        <translation>PC Set4</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:21</source>
        <translation>PC Set5</translation>
    </message>
    <message>
        <source>Canon:WhiteBalance:23</source>
        <translation>Auto (ambience priority)</translation>
    </message>
    <message>
        <source>Canon:SlowShutter</source>
        <translation>Slow Shutter</translation>
    </message>
    <message>
        <source>Canon:SlowShutter:-1</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:SlowShutter:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Canon:SlowShutter:1</source>
        <translation>Night Scene</translation>
    </message>
    <message>
        <source>Canon:SlowShutter:2</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Canon:SlowShutter:3</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Canon:SequenceNumber</source>
        <translation>Shot Number In Continuous Burst</translation>
    </message>
    <message>
        <source>Canon:CameraTemperature</source>
        <translation>Camera Temperature</translation>
    </message>
    <message>
        <source>Canon:AutoExposureBracketing</source>
        <translation>Auto Exposure Bracketing</translation>
    </message>
    <message>
        <source>Canon:AutoExposureBracketing:-1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Canon:AutoExposureBracketing:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Canon:AutoExposureBracketing:1</source>
        <translation>On (shot 1)</translation>
    </message>
    <message>
        <source>Canon:AutoExposureBracketing:2</source>
        <translation>On (shot 2)</translation>
    </message>
    <message>
        <source>Canon:AutoExposureBracketing:3</source>
        <translation>On (shot 3)</translation>
    </message>
    <message>
        <source>Canon:ControlMode</source>
        <translation>Control Mode</translation>
    </message>
    <message>
        <source>Canon:ControlMode:0</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:ControlMode:1</source>
        <translation>Camera Local Control</translation>
    </message>
    <message>
        <source>Canon:ControlMode:3</source>
        <translation>Computer Remote Control</translation>
    </message>
    <message>
        <source>Canon:CameraType</source>
        <translation>Camera Type</translation>
    </message>
    <message>
        <source>Canon:CameraType:0</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:CameraType:248</source>
        <translation>EOS High-end</translation>
    </message>
    <message>
        <source>Canon:CameraType:250</source>
        <translation>Compact</translation>
    </message>
    <message>
        <source>Canon:CameraType:252</source>
        <translation>EOS Mid-range</translation>
    </message>
    <message>
        <source>Canon:CameraType:255</source>
        <translation>DV Camera</translation>
    </message>
    <message>
        <source>Canon:AutoRotate</source>
        <translation>Auto Rotate</translation>
    </message>
    <message>
        <source>Canon:AutoRotate:-1</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:AutoRotate:0</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Canon:AutoRotate:1</source>
        <translation>Rotate 90 CW</translation>
    </message>
    <message>
        <source>Canon:AutoRotate:2</source>
        <translation>Rotate 180</translation>
    </message>
    <message>
        <source>Canon:AutoRotate:3</source>
        <translation>Rotate 270 CW</translation>
    </message>
    <message>
        <source>Canon:NDFilter</source>
        <translation>ND Filter</translation>
    </message>
    <message>
        <source>Canon:NDFilter:-1</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:NDFilter:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Canon:NDFilter:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Canon:ShutterCount</source>
        <translation>Shutter Count</translation>
    </message>
    <message>
        <source>Canon:BracketMode</source>
        <translation>Bracket Mode</translation>
    </message>
    <message>
        <source>Canon:BracketMode:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Canon:BracketMode:1</source>
        <translation>AEB</translation>
    </message>
    <message>
        <source>Canon:BracketMode:2</source>
        <translation>FEB</translation>
    </message>
    <message>
        <source>Canon:BracketMode:3</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Canon:BracketMode:4</source>
        <translation>WB</translation>
    </message>
    <message>
        <source>Canon:RawJpgQuality</source>
        <translation>Raw Jpg Quality</translation>
    </message>
    <message>
        <source>Canon:RawJpgQuality:-1</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:RawJpgQuality:1</source>
        <translation>Economy</translation>
    </message>
    <message>
        <source>Canon:RawJpgQuality:2</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Canon:RawJpgQuality:3</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Canon:RawJpgQuality:4</source>
        <translation>RAW</translation>
    </message>
    <message>
        <source>Canon:RawJpgQuality:5</source>
        <translation>Superfine</translation>
    </message>
    <message>
        <source>Canon:RawJpgQuality:7</source>
        <translation>CRAW</translation>
    </message>
    <message>
        <source>Canon:RawJpgQuality:130</source>
        <translation>Light (RAW)</translation>
    </message>
    <message>
        <source>Canon:RawJpgQuality:131</source>
        <translation>Standard (RAW)</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize</source>
        <translation>Raw Jpg Size</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:-1</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:0</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:1</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:2</source>
        <translation>Small</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:5</source>
        <translation>Medium 1</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:6</source>
        <translation>Medium 2</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:7</source>
        <translation>Medium 3</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:8</source>
        <translation>Postcard</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:9</source>
        <translation>Widescreen</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:10</source>
        <translation>Medium Widescreen</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:14</source>
        <translation>Small 1</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:15</source>
        <translation>Small 2</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:16</source>
        <translation>Small 3</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:128</source>
        <translation>640x480 Movie</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:129</source>
        <translation>Medium Movie</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:130</source>
        <translation>Small Movie</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:137</source>
        <translation>1280x720 Movie</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:142</source>
        <translation>1920x1080 Movie</translation>
    </message>
    <message>
        <source>Canon:RawJpgSize:143</source>
        <translation>4096x2160 Movie</translation>
    </message>
    <message>
        <source>Canon:LongExposureNoiseReduction2</source>
        <translation>Long Exposure Noise Reduction 2</translation>
    </message>
    <message>
        <source>Canon:LongExposureNoiseReduction2:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Canon:LongExposureNoiseReduction2:1</source>
        <translation>On (1D)</translation>
    </message>
    <message>
        <source>Canon:LongExposureNoiseReduction2:3</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Canon:LongExposureNoiseReduction2:4</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Canon:WBBracketMode</source>
        <translation>WB Bracket Mode</translation>
    </message>
    <message>
        <source>Canon:WBBracketMode:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Canon:WBBracketMode:1</source>
        <translation>On (shift AB)</translation>
    </message>
    <message>
        <source>Canon:WBBracketMode:2</source>
        <translation>On (shift GM)</translation>
    </message>
    <message>
        <source>Canon:FilterEffect</source>
        <translation>Filter Effect</translation>
    </message>
    <message>
        <source>Canon:FilterEffect:0</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Canon:FilterEffect:1</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Canon:FilterEffect:2</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Canon:FilterEffect:3</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Canon:FilterEffect:4</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Canon:ToningEffect</source>
        <translation>Toning Effect</translation>
    </message>
    <message>
        <source>Canon:ToningEffect:0</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Canon:ToningEffect:1</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Canon:ToningEffect:2</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Canon:ToningEffect:3</source>
        <translation>Purple</translation>
    </message>
    <message>
        <source>Canon:ToningEffect:4</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Canon:LiveViewShooting</source>
        <translation>Live View Shooting</translation>
    </message>
    <message>
        <source>Canon:LiveViewShooting:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Canon:LiveViewShooting:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Canon:ShutterMode</source>
        <translation>Shutter Mode</translation>
    </message>
    <message>
        <source>Canon:ShutterMode:0</source>
        <translation>Mechanical</translation>
    </message>
    <message>
        <source>Canon:ShutterMode:1</source>
        <translation>Electronic First Curtain</translation>
    </message>
    <message>
        <source>Canon:ShutterMode:2</source>
        <translation>Electronic</translation>
    </message>
    <message>
        <source>Canon:AntiFlicker</source>
        <translation>Anti Flicker</translation>
    </message>
    <message>
        <source>Canon:AntiFlicker:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Canon:AntiFlicker:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Canon:RFLensType</source>
        <translation>RF Lens Type</translation>
    </message>
    <message>
        <source>Canon:RFLensType:0</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Canon:RFLensType:257</source>
        <translation>Canon RF 50mm F1.2L USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:258</source>
        <translation>Canon RF 24-105mm F4L IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:259</source>
        <translation>Canon RF 28-70mm F2L USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:260</source>
        <translation>Canon RF 35mm F1.8 MACRO IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:261</source>
        <translation>Canon RF 85mm F1.2L USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:262</source>
        <translation>Canon RF 85mm F1.2L USM DS</translation>
    </message>
    <message>
        <source>Canon:RFLensType:263</source>
        <translation>Canon RF 24-70mm F2.8L IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:264</source>
        <translation>Canon RF 15-35mm F2.8L IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:265</source>
        <translation>Canon RF 24-240mm F4-6.3 IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:266</source>
        <translation>Canon RF 70-200mm F2.8L IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:267</source>
        <translation>Canon RF 85mm F2 MACRO IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:268</source>
        <translation>Canon RF 600mm F11 IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:269</source>
        <translation>Canon RF 600mm F11 IS STM + RF1.4x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:270</source>
        <translation>Canon RF 600mm F11 IS STM + RF2x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:271</source>
        <translation>Canon RF 800mm F11 IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:272</source>
        <translation>Canon RF 800mm F11 IS STM + RF1.4x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:273</source>
        <translation>Canon RF 800mm F11 IS STM + RF2x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:274</source>
        <translation>Canon RF 24-105mm F4-7.1 IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:275</source>
        <translation>Canon RF 100-500mm F4.5-7.1L IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:276</source>
        <translation>Canon RF 100-500mm F4.5-7.1L IS USM + RF1.4x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:277</source>
        <translation>Canon RF 100-500mm F4.5-7.1L IS USM + RF2x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:278</source>
        <translation>Canon RF 70-200mm F4L IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:279</source>
        <translation>Canon RF 100mm F2.8L MACRO IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:280</source>
        <translation>Canon RF 50mm F1.8 STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:281</source>
        <translation>Canon RF 14-35mm F4L IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:282</source>
        <translation>Canon RF-S 18-45mm F4.5-6.3 IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:283</source>
        <translation>Canon RF 100-400mm F5.6-8 IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:284</source>
        <translation>Canon RF 100-400mm F5.6-8 IS USM + RF1.4x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:285</source>
        <translation>Canon RF 100-400mm F5.6-8 IS USM + RF2x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:286</source>
        <translation>Canon RF-S 18-150mm F3.5-6.3 IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:287</source>
        <translation>Canon RF 24mm F1.8 MACRO IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:288</source>
        <translation>Canon RF 16mm F2.8 STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:289</source>
        <translation>Canon RF 400mm F2.8L IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:290</source>
        <translation>Canon RF 400mm F2.8L IS USM + RF1.4x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:291</source>
        <translation>Canon RF 400mm F2.8L IS USM + RF2x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:292</source>
        <translation>Canon RF 600mm F4L IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:293</source>
        <translation>Canon RF 600mm F4L IS USM + RF1.4x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:294</source>
        <translation>Canon RF 600mm F4L IS USM + RF2x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:295</source>
        <translation>Canon RF 800mm F5.6L IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:296</source>
        <translation>Canon RF 800mm F5.6L IS USM + RF1.4x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:297</source>
        <translation>Canon RF 800mm F5.6L IS USM + RF2x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:298</source>
        <translation>Canon RF 1200mm F8L IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:299</source>
        <translation>Canon RF 1200mm F8L IS USM + RF1.4x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:300</source>
        <translation>Canon RF 1200mm F8L IS USM + RF2x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:301</source>
        <translation>Canon RF 5.2mm F2.8L Dual Fisheye 3D VR</translation>
    </message>
    <message>
        <source>Canon:RFLensType:302</source>
        <translation>Canon RF 15-30mm F4.5-6.3 IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:303</source>
        <translation>Canon RF 135mm F1.8 L IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:304</source>
        <translation>Canon RF 24-50mm F4.5-6.3 IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:305</source>
        <translation>Canon RF-S 55-210mm F5-7.1 IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:306</source>
        <translation>Canon RF 100-300mm F2.8L IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:307</source>
        <translation>Canon RF 100-300mm F2.8L IS USM + RF1.4x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:308</source>
        <translation>Canon RF 100-300mm F2.8L IS USM + RF2x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:309</source>
        <translation>Canon RF 200-800mm F6.3-9 IS USM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:310</source>
        <translation>Canon RF 200-800mm F6.3-9 IS USM + RF1.4x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:311</source>
        <translation>Canon RF 200-800mm F6.3-9 IS USM + RF2x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:312</source>
        <translation>Canon RF 10-20mm F4 L IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:313</source>
        <translation>Canon RF 28mm F2.8 STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:314</source>
        <translation>Canon RF 24-105mm F2.8 L IS USM Z</translation>
    </message>
    <message>
        <source>Canon:RFLensType:315</source>
        <translation>Canon RF-S 10-18mm F4.5-6.3 IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:316</source>
        <translation>Canon RF 35mm F1.4 L VCM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:317</source>
        <translation>Canon RF-S 3.9mm F3.5 STM DUAL FISHEYE</translation>
    </message>
    <message>
        <source>Canon:RFLensType:318</source>
        <translation>Canon RF 28-70mm F2.8 IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:319</source>
        <translation>Canon RF 70-200mm F2.8 L IS USM Z</translation>
    </message>
    <message>
        <source>Canon:RFLensType:320</source>
        <translation>Canon RF 70-200mm F2.8 L IS USM Z + RF1.4x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:321</source>
        <translation>Canon RF 70-200mm F2.8 L IS USM Z + RF2x</translation>
    </message>
    <message>
        <source>Canon:RFLensType:323</source>
        <translation>Canon RF 16-28mm F2.8 IS STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:324</source>
        <translation>Canon RF-S 14-30mm F4-6.3 IS STM PZ</translation>
    </message>
    <message>
        <source>Canon:RFLensType:325</source>
        <translation>Canon RF 50mm F1.4 L VCM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:326</source>
        <translation>Canon RF 24mm F1.4 L VCM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:327</source>
        <translation>Canon RF 20mm F1.4 L VCM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:328</source>
        <translation>Canon RF 85mm F1.4 L VCM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:329</source>
        <translation>Canon RF 20-50mm F4 L IS USM PZ</translation>
    </message>
    <message>
        <source>Canon:RFLensType:330</source>
        <translation>Canon RF 45mm F1.2 STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:331</source>
        <translation>Canon RF 7-14mm F2.8-3.5 L FISHEYE STM</translation>
    </message>
    <message>
        <source>Canon:RFLensType:332</source>
        <translation>Canon RF 14mm F1.4 L VCM</translation>
    </message>
    <message>
        <source>Nikon:Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Nikon:ColorMode</source>
        <translation>Color Mode</translation>
    </message>
    <message>
        <source>Nikon:WhiteBalance</source>
        <translation>White Balance</translation>
    </message>
    <message>
        <source>Nikon:Sharpness</source>
        <translation>Sharpness</translation>
    </message>
    <message>
        <source>Nikon:FocusMode</source>
        <translation>Focus Mode</translation>
    </message>
    <message>
        <source>Nikon:FlashSetting</source>
        <translation>Flash Setting</translation>
    </message>
    <message>
        <source>Nikon:FlashType</source>
        <translation>Flash Type</translation>
    </message>
    <message>
        <source>Nikon:ISOSelection</source>
        <translation>ISO Selection</translation>
    </message>
    <message>
        <source>Nikon:ImageProcessing</source>
        <translation>Image Processing</translation>
    </message>
    <message>
        <source>Nikon:SerialNumber</source>
        <translation>Serial Number</translation>
    </message>
    <message>
        <source>Nikon:ColorSpace</source>
        <translation>Color Space</translation>
    </message>
    <message>
        <source>Nikon:ColorSpace:1</source>
        <translation>sRGB</translation>
    </message>
    <message>
        <source>Nikon:ColorSpace:2</source>
        <translation>Adobe RGB</translation>
    </message>
    <message>
        <source>Nikon:ColorSpace:4</source>
        <translation>BT.2100</translation>
    </message>
    <message>
        <source>Nikon:ImageAuthentication</source>
        <translation>Image Authentication</translation>
    </message>
    <message>
        <source>Nikon:ImageAuthentication:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Nikon:ImageAuthentication:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Nikon:ActiveD-Lighting</source>
        <translation>Active D-Lighting</translation>
    </message>
    <message>
        <source>Nikon:ActiveD-Lighting:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Nikon:ActiveD-Lighting:1</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Nikon:ActiveD-Lighting:3</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Nikon:ActiveD-Lighting:5</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Nikon:ActiveD-Lighting:7</source>
        <translation>Extra High</translation>
    </message>
    <message>
        <source>Nikon:ActiveD-Lighting:8</source>
        <translation>Extra High 1</translation>
    </message>
    <message>
        <source>Nikon:ActiveD-Lighting:9</source>
        <translation>Extra High 2</translation>
    </message>
    <message>
        <source>Nikon:ActiveD-Lighting:10</source>
        <translation>Extra High 3</translation>
    </message>
    <message>
        <source>Nikon:ActiveD-Lighting:11</source>
        <translation>Extra High 4</translation>
    </message>
    <message>
        <source>Nikon:ActiveD-Lighting:65535</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Nikon:VignetteControl</source>
        <translation>Vignette Control</translation>
    </message>
    <message>
        <source>Nikon:VignetteControl:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Nikon:VignetteControl:1</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Nikon:VignetteControl:3</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Nikon:VignetteControl:5</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Nikon:ShutterMode</source>
        <translation>Shutter Mode</translation>
    </message>
    <message>
        <source>Nikon:ShutterMode:0</source>
        <translation>Mechanical</translation>
    </message>
    <message>
        <source>Nikon:ShutterMode:16</source>
        <translation>Electronic</translation>
    </message>
    <message>
        <source>Nikon:ShutterMode:48</source>
        <translation>Electronic Front Curtain</translation>
    </message>
    <message>
        <source>Nikon:ShutterMode:64</source>
        <translation>Electronic (Movie)</translation>
    </message>
    <message>
        <source>Nikon:ShutterMode:80</source>
        <translation>Auto (Mechanical)</translation>
    </message>
    <message>
        <source>Nikon:ShutterMode:81</source>
        <translation>Auto (Electronic Front Curtain)</translation>
    </message>
    <message>
        <source>Nikon:ShutterMode:96</source>
        <translation>Electronic (High Speed)</translation>
    </message>
    <message>
        <source>Nikon:MechanicalShutterCount</source>
        <translation>Mechanical Shutter Count</translation>
    </message>
    <message>
        <source>Nikon:ImageSizeRAW</source>
        <translation>Image Size RAW</translation>
    </message>
    <message>
        <source>Nikon:ImageSizeRAW:1</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>Nikon:ImageSizeRAW:2</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Nikon:ImageSizeRAW:3</source>
        <translation>Small</translation>
    </message>
    <message>
        <source>Nikon:JPGCompression</source>
        <translation>JPG Compression</translation>
    </message>
    <message>
        <source>Nikon:JPGCompression:1</source>
        <translation>Size Priority</translation>
    </message>
    <message>
        <source>Nikon:JPGCompression:3</source>
        <translation>Optimal Quality</translation>
    </message>
    <message>
        <source>Nikon:ImageAdjustment</source>
        <translation>Image Adjustment</translation>
    </message>
    <message>
        <source>Nikon:ToneComp</source>
        <translation>Tone Comp</translation>
    </message>
    <message>
        <source>Nikon:AuxiliaryLens</source>
        <translation>Auxiliary Lens</translation>
    </message>
    <message>
        <source>Nikon:LensType</source>
        <translation>Lens Type</translation>
    </message>
    <message>
        <source>Nikon:FlashMode</source>
        <translation>Flash Mode</translation>
    </message>
    <message>
        <source>Nikon:FlashMode:0</source>
        <translation>Did Not Fire</translation>
    </message>
    <message>
        <source>Nikon:FlashMode:1</source>
        <translation>Fired, Manual</translation>
    </message>
    <message>
        <source>Nikon:FlashMode:3</source>
        <translation>Not Ready</translation>
    </message>
    <message>
        <source>Nikon:FlashMode:7</source>
        <translation>Fired, External</translation>
    </message>
    <message>
        <source>Nikon:FlashMode:8</source>
        <translation>Fired, Commander Mode</translation>
    </message>
    <message>
        <source>Nikon:FlashMode:9</source>
        <translation>Fired, TTL Mode</translation>
    </message>
    <message>
        <source>Nikon:FlashMode:18</source>
        <translation>LED Light</translation>
    </message>
    <message>
        <source>Nikon:NEFCompression</source>
        <translation>NEF Compression</translation>
    </message>
    <message>
        <source>Nikon:NEFCompression:1</source>
        <translation>Lossy (type 1)</translation>
    </message>
    <message>
        <source>Nikon:NEFCompression:2</source>
        <translation>Uncompressed</translation>
    </message>
    <message>
        <source>Nikon:NEFCompression:3</source>
        <translation>Lossless</translation>
    </message>
    <message>
        <source>Nikon:NEFCompression:4</source>
        <translation>Lossy (type 2)</translation>
    </message>
    <message>
        <source>Nikon:NEFCompression:5</source>
        <translation>Striped packed 12 bits</translation>
    </message>
    <message>
        <source>Nikon:NEFCompression:6</source>
        <translation>Uncompressed (reduced to 12 bit)</translation>
    </message>
    <message>
        <source>Nikon:NEFCompression:7</source>
        <translation>Unpacked 12 bits</translation>
    </message>
    <message>
        <source>Nikon:NEFCompression:8</source>
        <translation>Small</translation>
    </message>
    <message>
        <source>Nikon:NEFCompression:9</source>
        <translation>Packed 12 bits</translation>
    </message>
    <message>
        <source>Nikon:NEFCompression:10</source>
        <translation>Packed 14 bits</translation>
    </message>
    <message>
        <source>Nikon:NEFCompression:13</source>
        <translation>High Efficiency</translation>
    </message>
    <message>
        <source>Nikon:NEFCompression:14</source>
        <translation>High Efficiency*</translation>
    </message>
    <message>
        <source>Nikon:SceneMode</source>
        <translation>Scene Mode</translation>
    </message>
    <message>
        <source>Nikon:LightSource</source>
        <translation>Light Source</translation>
    </message>
    <message>
        <source>Nikon:DateStampMode</source>
        <translation>Date Stamp Mode</translation>
    </message>
    <message>
        <source>Nikon:DateStampMode:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Nikon:DateStampMode:1</source>
        <translation>Date &amp; Time</translation>
    </message>
    <message>
        <source>Nikon:DateStampMode:2</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Nikon:DateStampMode:3</source>
        <translation>Date Counter</translation>
    </message>
    <message>
        <source>Nikon:ShutterCount</source>
        <translation>Shutter Count</translation>
    </message>
    <message>
        <source>Nikon:ImageOptimization</source>
        <translation>Image Optimization</translation>
    </message>
    <message>
        <source>Nikon:HighISONoiseReduction</source>
        <translation>High ISO Noise Reduction</translation>
    </message>
    <message>
        <source>Nikon:HighISONoiseReduction:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Nikon:HighISONoiseReduction:1</source>
        <translation>Minimal</translation>
    </message>
    <message>
        <source>Nikon:HighISONoiseReduction:2</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Nikon:HighISONoiseReduction:3</source>
        <translation>Medium Low</translation>
    </message>
    <message>
        <source>Nikon:HighISONoiseReduction:4</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Nikon:HighISONoiseReduction:5</source>
        <translation>Medium High</translation>
    </message>
    <message>
        <source>Nikon:HighISONoiseReduction:6</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Nikon:SilentPhotography</source>
        <translation>Silent Photography</translation>
    </message>
    <message>
        <source>Nikon:SilentPhotography:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Nikon:SilentPhotography:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Sony:Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Sony:Quality:0</source>
        <translation>RAW</translation>
    </message>
    <message>
        <source>Sony:Quality:1</source>
        <translation>Super Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:2</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:3</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Sony:Quality:4</source>
        <translation>Economy</translation>
    </message>
    <message>
        <source>Sony:Quality:5</source>
        <translation>Extra Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:6</source>
        <translation>RAW + JPEG/HEIF</translation>
    </message>
    <message>
        <source>Sony:Quality:7</source>
        <translation>Compressed RAW</translation>
    </message>
    <message>
        <source>Sony:Quality:8</source>
        <translation>Compressed RAW + JPEG</translation>
    </message>
    <message>
        <source>Sony:Quality:9</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Sony:Quality:4294967295</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:Quality:0 0</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:Quality:0 1</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Sony:Quality:0 2</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:0 3</source>
        <translation>Extra Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:0 4</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Sony:Quality:1 0</source>
        <translation>RAW</translation>
    </message>
    <message>
        <source>Sony:Quality:1 1</source>
        <translation>RAW + Standard</translation>
    </message>
    <message>
        <source>Sony:Quality:1 2</source>
        <translation>RAW + Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:1 3</source>
        <translation>RAW + Extra Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:1 4</source>
        <translation>RAW + Light</translation>
    </message>
    <message>
        <source>Sony:Quality:2 0</source>
        <translation>S-size RAW</translation>
    </message>
    <message>
        <source>Sony:Quality:2 1</source>
        <translation>S-size RAW + Standard</translation>
    </message>
    <message>
        <source>Sony:Quality:2 2</source>
        <translation>S-size RAW + Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:2 3</source>
        <translation>S-size RAW + Extra Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:2 4</source>
        <translation>S-size RAW + Light</translation>
    </message>
    <message>
        <source>Sony:Quality:3 0</source>
        <translation>M-size RAW</translation>
    </message>
    <message>
        <source>Sony:Quality:3 1</source>
        <translation>M-size RAW + Standard</translation>
    </message>
    <message>
        <source>Sony:Quality:3 2</source>
        <translation>M-size RAW + Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:3 3</source>
        <translation>M-size RAW + Extra Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:3 4</source>
        <translation>M-size RAW + Light</translation>
    </message>
    <message>
        <source>Sony:Quality:4 0</source>
        <translation>Compressed RAW</translation>
    </message>
    <message>
        <source>Sony:Quality:4 1</source>
        <translation>Compressed RAW + Standard</translation>
    </message>
    <message>
        <source>Sony:Quality:4 2</source>
        <translation>Compressed RAW + Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:4 3</source>
        <translation>Compressed RAW + Extra Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:4 4</source>
        <translation>Compressed RAW + Light</translation>
    </message>
    <message>
        <source>Sony:Quality:5 0</source>
        <translation>Compressed (HQ) RAW</translation>
    </message>
    <message>
        <source>Sony:Quality:5 1</source>
        <translation>Compressed (HQ) RAW + Standard</translation>
    </message>
    <message>
        <source>Sony:Quality:5 2</source>
        <translation>Compressed (HQ) RAW + Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:5 3</source>
        <translation>Compressed (HQ) RAW + Extra Fine</translation>
    </message>
    <message>
        <source>Sony:Quality:5 4</source>
        <translation>Compressed (HQ) RAW + Light</translation>
    </message>
    <message>
        <source>Sony:Teleconverter</source>
        <translation>Teleconverter</translation>
    </message>
    <message>
        <source>Sony:Teleconverter:0</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Sony:Teleconverter:4</source>
        <translation>Minolta/Sony AF 1.4x APO (D) (0x04)</translation>
    </message>
    <message>
        <source>Sony:Teleconverter:5</source>
        <translation>Minolta/Sony AF 2x APO (D) (0x05)</translation>
    </message>
    <message>
        <source>Sony:Teleconverter:72</source>
        <translation>Minolta/Sony AF 2x APO (D)</translation>
    </message>
    <message>
        <source>Sony:Teleconverter:80</source>
        <translation>Minolta AF 2x APO II</translation>
    </message>
    <message>
        <source>Sony:Teleconverter:96</source>
        <translation>Minolta AF 2x APO</translation>
    </message>
    <message>
        <source>Sony:Teleconverter:136</source>
        <translation>Minolta/Sony AF 1.4x APO (D)</translation>
    </message>
    <message>
        <source>Sony:Teleconverter:144</source>
        <translation>Minolta AF 1.4x APO II</translation>
    </message>
    <message>
        <source>Sony:Teleconverter:160</source>
        <translation>Minolta AF 1.4x APO</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance</source>
        <translation>White Balance</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:0</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:1</source>
        <translation>Color Temperature/Color Filter</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:16</source>
        <translation>Daylight</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:32</source>
        <translation>Cloudy</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:48</source>
        <translation>Shade</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:64</source>
        <translation>Tungsten</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:80</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:96</source>
        <translation>Fluorescent</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:112</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:128</source>
        <translation>Underwater</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:4</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:5</source>
        <translation>Daylight</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:6</source>
        <translation>Cloudy</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:7</source>
        <translation>Cool White Fluorescent</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:8</source>
        <translation>Day White Fluorescent</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:9</source>
        <translation>Daylight Fluorescent</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:10</source>
        <translation>Incandescent2</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:11</source>
        <translation>Warm White Fluorescent</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:14</source>
        <translation>Incandescent</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:15</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:17</source>
        <translation>Underwater 1 (Blue Water)</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:18</source>
        <translation>Underwater 2 (Green Water)</translation>
    </message>
    <message>
        <source>Sony:WhiteBalance:19</source>
        <translation>Underwater Auto</translation>
    </message>
    <message>
        <source>Sony:Rating</source>
        <translation>Rating</translation>
    </message>
    <message>
        <source>Sony:LongExposureNoiseReduction</source>
        <translation>Long Exposure Noise Reduction</translation>
    </message>
    <message>
        <source>Sony:LongExposureNoiseReduction:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:LongExposureNoiseReduction:1</source>
        <translation>On (unused)</translation>
    </message>
    <message>
        <source>Sony:LongExposureNoiseReduction:65537</source>
        <translation>On (dark subtracted)</translation>
    </message>
    <message>
        <source>Sony:LongExposureNoiseReduction:4294901760</source>
        <translation>Off (65535)</translation>
    </message>
    <message>
        <source>Sony:LongExposureNoiseReduction:4294901761</source>
        <translation>On (65535)</translation>
    </message>
    <message>
        <source>Sony:LongExposureNoiseReduction:4294967295</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:HighISONoiseReduction</source>
        <translation>High ISO Noise Reduction</translation>
    </message>
    <message>
        <source>Sony:HighISONoiseReduction:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:HighISONoiseReduction:1</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Sony:HighISONoiseReduction:2</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Sony:HighISONoiseReduction:3</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Sony:HighISONoiseReduction:256</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Sony:HighISONoiseReduction:65535</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:MultiFrameNoiseReduction</source>
        <translation>Multi Frame Noise Reduction</translation>
    </message>
    <message>
        <source>Sony:MultiFrameNoiseReduction:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:MultiFrameNoiseReduction:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Sony:MultiFrameNoiseReduction:255</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:PictureEffect</source>
        <translation>Picture Effect</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:1</source>
        <translation>Toy Camera</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:2</source>
        <translation>Pop Color</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:3</source>
        <translation>Posterization</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:4</source>
        <translation>Posterization B/W</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:5</source>
        <translation>Retro Photo</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:6</source>
        <translation>Soft High Key</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:7</source>
        <translation>Partial Color (red)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:8</source>
        <translation>Partial Color (green)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:9</source>
        <translation>Partial Color (blue)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:10</source>
        <translation>Partial Color (yellow)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:13</source>
        <translation>High Contrast Monochrome</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:16</source>
        <translation>Toy Camera (normal)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:17</source>
        <translation>Toy Camera (cool)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:18</source>
        <translation>Toy Camera (warm)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:19</source>
        <translation>Toy Camera (green)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:20</source>
        <translation>Toy Camera (magenta)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:32</source>
        <translation>Soft Focus (low)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:33</source>
        <translation>Soft Focus</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:34</source>
        <translation>Soft Focus (high)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:48</source>
        <translation>Miniature (auto)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:49</source>
        <translation>Miniature (top)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:50</source>
        <translation>Miniature (middle horizontal)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:51</source>
        <translation>Miniature (bottom)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:52</source>
        <translation>Miniature (left)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:53</source>
        <translation>Miniature (middle vertical)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:54</source>
        <translation>Miniature (right)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:64</source>
        <translation>HDR Painting (low)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:65</source>
        <translation>HDR Painting</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:66</source>
        <translation>HDR Painting (high)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:80</source>
        <translation>Rich-tone Monochrome</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:97</source>
        <translation>Water Color</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:98</source>
        <translation>Water Color 2</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:112</source>
        <translation>Illustration (low)</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:113</source>
        <translation>Illustration</translation>
    </message>
    <message>
        <source>Sony:PictureEffect:114</source>
        <translation>Illustration (high)</translation>
    </message>
    <message>
        <source>Sony:SoftSkinEffect</source>
        <translation>Soft Skin Effect</translation>
    </message>
    <message>
        <source>Sony:SoftSkinEffect:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:SoftSkinEffect:1</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Sony:SoftSkinEffect:2</source>
        <translation>Mid</translation>
    </message>
    <message>
        <source>Sony:SoftSkinEffect:3</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Sony:SoftSkinEffect:4294967295</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:VignettingCorrection</source>
        <translation>Vignetting Correction</translation>
    </message>
    <message>
        <source>Sony:VignettingCorrection:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:VignettingCorrection:2</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Sony:VignettingCorrection:4294967295</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:LateralChromaticAberration</source>
        <translation>Lateral Chromatic Aberration</translation>
    </message>
    <message>
        <source>Sony:LateralChromaticAberration:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:LateralChromaticAberration:2</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Sony:LateralChromaticAberration:4294967295</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:DistortionCorrectionSetting</source>
        <translation>Distortion Correction Setting</translation>
    </message>
    <message>
        <source>Sony:DistortionCorrectionSetting:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:DistortionCorrectionSetting:2</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Sony:DistortionCorrectionSetting:4294967295</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:FlashAction</source>
        <translation>Flash Action</translation>
    </message>
    <message>
        <source>Sony:FlashAction:0</source>
        <translation>Did not fire</translation>
    </message>
    <message>
        <source>Sony:FlashAction:1</source>
        <translation>Flash Fired</translation>
    </message>
    <message>
        <source>Sony:FlashAction:2</source>
        <translation>External Flash Fired</translation>
    </message>
    <message>
        <source>Sony:FlashAction:3</source>
        <translation>Wireless Controlled Flash Fired</translation>
    </message>
    <message>
        <source>Sony:ElectronicFrontCurtainShutter</source>
        <translation>Electronic Front Curtain Shutter</translation>
    </message>
    <message>
        <source>Sony:ElectronicFrontCurtainShutter:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:ElectronicFrontCurtainShutter:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Sony:AFTracking</source>
        <translation>AF Tracking</translation>
    </message>
    <message>
        <source>Sony:AFTracking:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:AFTracking:1</source>
        <translation>Face tracking</translation>
    </message>
    <message>
        <source>Sony:AFTracking:2</source>
        <translation>Lock On AF</translation>
    </message>
    <message>
        <source>Sony:RAWFileType</source>
        <translation>RAW File Type</translation>
    </message>
    <message>
        <source>Sony:RAWFileType:0</source>
        <translation>Compressed RAW</translation>
    </message>
    <message>
        <source>Sony:RAWFileType:1</source>
        <translation>Uncompressed RAW</translation>
    </message>
    <message>
        <source>Sony:RAWFileType:2</source>
        <translation>Lossless Compressed RAW</translation>
    </message>
    <message>
        <source>Sony:RAWFileType:3</source>
        <translation>Compressed RAW 2</translation>
    </message>
    <message>
        <source>Sony:RAWFileType:65535</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:PrioritySetInAWB</source>
        <translation>Priority Set In AWB</translation>
    </message>
    <message>
        <source>Sony:PrioritySetInAWB:0</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Sony:PrioritySetInAWB:1</source>
        <translation>Ambience</translation>
    </message>
    <message>
        <source>Sony:PrioritySetInAWB:2</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Sony:MeteringMode2</source>
        <translation>Metering Mode 2</translation>
    </message>
    <message>
        <source>Sony:MeteringMode2:256</source>
        <translation>Multi-segment</translation>
    </message>
    <message>
        <source>Sony:MeteringMode2:512</source>
        <translation>Center-weighted average</translation>
    </message>
    <message>
        <source>Sony:MeteringMode2:769</source>
        <translation>Spot (Standard)</translation>
    </message>
    <message>
        <source>Sony:MeteringMode2:770</source>
        <translation>Spot (Large)</translation>
    </message>
    <message>
        <source>Sony:MeteringMode2:1024</source>
        <translation>Average</translation>
    </message>
    <message>
        <source>Sony:MeteringMode2:1280</source>
        <translation>Highlight</translation>
    </message>
    <message>
        <source>Sony:SonyModelID</source>
        <translation>Sony Model ID</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:2</source>
        <translation>DSC-R1</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:256</source>
        <translation>DSLR-A100</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:257</source>
        <translation>DSLR-A900</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:258</source>
        <translation>DSLR-A700</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:259</source>
        <translation>DSLR-A200</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:260</source>
        <translation>DSLR-A350</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:261</source>
        <translation>DSLR-A300</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:262</source>
        <translation>DSLR-A900 (APS-C mode)</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:263</source>
        <translation>DSLR-A380/A390</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:264</source>
        <translation>DSLR-A330</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:265</source>
        <translation>DSLR-A230</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:266</source>
        <translation>DSLR-A290</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:269</source>
        <translation>DSLR-A850</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:270</source>
        <translation>DSLR-A850 (APS-C mode)</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:273</source>
        <translation>DSLR-A550</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:274</source>
        <translation>DSLR-A500</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:275</source>
        <translation>DSLR-A450</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:278</source>
        <translation>NEX-5</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:279</source>
        <translation>NEX-3</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:280</source>
        <translation>SLT-A33</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:281</source>
        <translation>SLT-A55 / SLT-A55V</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:282</source>
        <translation>DSLR-A560</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:283</source>
        <translation>DSLR-A580</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:284</source>
        <translation>NEX-C3</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:285</source>
        <translation>SLT-A35</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:286</source>
        <translation>SLT-A65 / SLT-A65V</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:287</source>
        <translation>SLT-A77 / SLT-A77V</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:288</source>
        <translation>NEX-5N</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:289</source>
        <translation>NEX-7</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:290</source>
        <translation>NEX-VG20E</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:291</source>
        <translation>SLT-A37</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:292</source>
        <translation>SLT-A57</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:293</source>
        <translation>NEX-F3</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:294</source>
        <translation>SLT-A99 / SLT-A99V</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:295</source>
        <translation>NEX-6</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:296</source>
        <translation>NEX-5R</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:297</source>
        <translation>DSC-RX100</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:298</source>
        <translation>DSC-RX1</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:299</source>
        <translation>NEX-VG900</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:300</source>
        <translation>NEX-VG30E</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:302</source>
        <translation>ILCE-3000 / ILCE-3500</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:303</source>
        <translation>SLT-A58</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:305</source>
        <translation>NEX-3N</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:306</source>
        <translation>ILCE-7</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:307</source>
        <translation>NEX-5T</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:308</source>
        <translation>DSC-RX100M2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:309</source>
        <translation>DSC-RX10</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:310</source>
        <translation>DSC-RX1R</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:311</source>
        <translation>ILCE-7R</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:312</source>
        <translation>ILCE-6000</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:313</source>
        <translation>ILCE-5000</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:317</source>
        <translation>DSC-RX100M3</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:318</source>
        <translation>ILCE-7S</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:319</source>
        <translation>ILCA-77M2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:339</source>
        <translation>ILCE-5100</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:340</source>
        <translation>ILCE-7M2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:341</source>
        <translation>DSC-RX100M4</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:342</source>
        <translation>DSC-RX10M2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:344</source>
        <translation>DSC-RX1RM2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:346</source>
        <translation>ILCE-QX1</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:347</source>
        <translation>ILCE-7RM2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:350</source>
        <translation>ILCE-7SM2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:353</source>
        <translation>ILCA-68</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:354</source>
        <translation>ILCA-99M2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:355</source>
        <translation>DSC-RX10M3</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:356</source>
        <translation>DSC-RX100M5</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:357</source>
        <translation>ILCE-6300</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:358</source>
        <translation>ILCE-9</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:360</source>
        <translation>ILCE-6500</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:362</source>
        <translation>ILCE-7RM3</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:363</source>
        <translation>ILCE-7M3</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:364</source>
        <translation>DSC-RX0</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:365</source>
        <translation>DSC-RX10M4</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:366</source>
        <translation>DSC-RX100M6</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:367</source>
        <translation>DSC-HX99</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:369</source>
        <translation>DSC-RX100M5A</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:371</source>
        <translation>ILCE-6400</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:372</source>
        <translation>DSC-RX0M2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:373</source>
        <translation>DSC-HX95</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:374</source>
        <translation>DSC-RX100M7</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:375</source>
        <translation>ILCE-7RM4</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:376</source>
        <translation>ILCE-9M2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:378</source>
        <translation>ILCE-6600</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:379</source>
        <translation>ILCE-6100</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:380</source>
        <translation>ZV-1</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:381</source>
        <translation>ILCE-7C</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:382</source>
        <translation>ZV-E10</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:383</source>
        <translation>ILCE-7SM3</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:384</source>
        <translation>ILCE-1</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:385</source>
        <translation>ILME-FX3</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:386</source>
        <translation>ILCE-7RM3A</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:387</source>
        <translation>ILCE-7RM4A</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:388</source>
        <translation>ILCE-7M4</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:389</source>
        <translation>ZV-1F</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:390</source>
        <translation>ILCE-7RM5</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:391</source>
        <translation>ILME-FX30</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:392</source>
        <translation>ILCE-9M3</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:393</source>
        <translation>ZV-E1</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:394</source>
        <translation>ILCE-6700</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:395</source>
        <translation>ZV-1M2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:396</source>
        <translation>ILCE-7CR</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:397</source>
        <translation>ILCE-7CM2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:398</source>
        <translation>ILX-LR1</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:399</source>
        <translation>ZV-E10M2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:400</source>
        <translation>ILCE-1M2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:401</source>
        <translation>DSC-RX1RM3</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:402</source>
        <translation>ILCE-6400A</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:403</source>
        <translation>ILCE-6100A</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:404</source>
        <translation>DSC-RX100M7A</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:406</source>
        <translation>ILME-FX2</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:407</source>
        <translation>ILCE-7M5</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:408</source>
        <translation>ZV-1A</translation>
    </message>
    <message>
        <source>Sony:SonyModelID:410</source>
        <translation>ILCE-7RM6</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle</source>
        <translation>Creative Style</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:AdobeRGB</source>
        <translation>Adobe RGB</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:Autumnleaves</source>
        <translation>Autumn Leaves</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:BW</source>
        <translation>B&amp;W</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:Deep</source>
        <translation>Deep</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:FL</source>
        <translation>FL</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:IN</source>
        <translation>IN</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:Landscape</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:Neutral</source>
        <translation>Neutral</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:Nightview</source>
        <translation>Night View/Portrait</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:Real</source>
        <translation>Real</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:SH</source>
        <translation>SH</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:Sepia</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:Sunset</source>
        <translation>Sunset</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:VV2</source>
        <translation>Vivid 2</translation>
    </message>
    <message>
        <source>Sony:CreativeStyle:Vivid</source>
        <translation>Vivid</translation>
    </message>
    <message>
        <source>Sony:SceneMode</source>
        <translation>Scene Mode</translation>
    </message>
    <message>
        <source>Sony:SceneMode:0</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Sony:SceneMode:1</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Sony:SceneMode:2</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Sony:SceneMode:3</source>
        <translation>Night Scene</translation>
    </message>
    <message>
        <source>Sony:SceneMode:4</source>
        <translation>Sunset</translation>
    </message>
    <message>
        <source>Sony:SceneMode:5</source>
        <translation>Sports</translation>
    </message>
    <message>
        <source>Sony:SceneMode:6</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Sony:SceneMode:7</source>
        <translation>Night Portrait</translation>
    </message>
    <message>
        <source>Sony:SceneMode:8</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Sony:SceneMode:9</source>
        <translation>Super Macro</translation>
    </message>
    <message>
        <source>Sony:SceneMode:16</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Sony:SceneMode:17</source>
        <translation>Night View/Portrait</translation>
    </message>
    <message>
        <source>Sony:SceneMode:18</source>
        <translation>Sweep Panorama</translation>
    </message>
    <message>
        <source>Sony:SceneMode:19</source>
        <translation>Handheld Night Shot</translation>
    </message>
    <message>
        <source>Sony:SceneMode:20</source>
        <translation>Anti Motion Blur</translation>
    </message>
    <message>
        <source>Sony:SceneMode:21</source>
        <translation>Cont. Priority AE</translation>
    </message>
    <message>
        <source>Sony:SceneMode:22</source>
        <translation>Auto+</translation>
    </message>
    <message>
        <source>Sony:SceneMode:23</source>
        <translation>3D Sweep Panorama</translation>
    </message>
    <message>
        <source>Sony:SceneMode:24</source>
        <translation>Superior Auto</translation>
    </message>
    <message>
        <source>Sony:SceneMode:25</source>
        <translation>High Sensitivity</translation>
    </message>
    <message>
        <source>Sony:SceneMode:26</source>
        <translation>Fireworks</translation>
    </message>
    <message>
        <source>Sony:SceneMode:27</source>
        <translation>Food</translation>
    </message>
    <message>
        <source>Sony:SceneMode:28</source>
        <translation>Pet</translation>
    </message>
    <message>
        <source>Sony:SceneMode:33</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Sony:SceneMode:65535</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:ZoneMatching</source>
        <translation>Zone Matching</translation>
    </message>
    <message>
        <source>Sony:ZoneMatching:0</source>
        <translation>ISO Setting Used</translation>
    </message>
    <message>
        <source>Sony:ZoneMatching:1</source>
        <translation>High Key</translation>
    </message>
    <message>
        <source>Sony:ZoneMatching:2</source>
        <translation>Low Key</translation>
    </message>
    <message>
        <source>Sony:ImageStabilization</source>
        <translation>Image Stabilization</translation>
    </message>
    <message>
        <source>Sony:ImageStabilization:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:ImageStabilization:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Sony:ImageStabilization:4294967295</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:LensType</source>
        <translation>Lens Type</translation>
    </message>
    <message>
        <source>Sony:LensType:0</source>
        <translation>Minolta AF 28-85mm F3.5-4.5 New</translation>
    </message>
    <message>
        <source>Sony:LensType:1</source>
        <translation>Minolta AF 80-200mm F2.8 HS-APO G</translation>
    </message>
    <message>
        <source>Sony:LensType:2</source>
        <translation>Minolta AF 28-70mm F2.8 G</translation>
    </message>
    <message>
        <source>Sony:LensType:3</source>
        <translation>Minolta AF 28-80mm F4-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:4</source>
        <translation>Minolta AF 85mm F1.4G</translation>
    </message>
    <message>
        <source>Sony:LensType:5</source>
        <translation>Minolta AF 35-70mm F3.5-4.5 [II]</translation>
    </message>
    <message>
        <source>Sony:LensType:6</source>
        <translation>Minolta AF 24-85mm F3.5-4.5 [New]</translation>
    </message>
    <message>
        <source>Sony:LensType:7</source>
        <translation>Minolta AF 100-300mm F4.5-5.6 APO [New] or 100-400mm or Sigma Lens or Minolta AF 100-400mm F4.5-6.7 APO or Sigma AF 100-300mm F4 EX DG IF</translation>
    </message>
    <message>
        <source>Sony:LensType:8</source>
        <translation>Minolta AF 70-210mm F4.5-5.6 [II]</translation>
    </message>
    <message>
        <source>Sony:LensType:9</source>
        <translation>Minolta AF 50mm F3.5 Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:10</source>
        <translation>Minolta AF 28-105mm F3.5-4.5 [New]</translation>
    </message>
    <message>
        <source>Sony:LensType:11</source>
        <translation>Minolta AF 300mm F4 HS-APO G</translation>
    </message>
    <message>
        <source>Sony:LensType:12</source>
        <translation>Minolta AF 100mm F2.8 Soft Focus</translation>
    </message>
    <message>
        <source>Sony:LensType:13</source>
        <translation>Minolta AF 75-300mm F4.5-5.6 (New or II)</translation>
    </message>
    <message>
        <source>Sony:LensType:14</source>
        <translation>Minolta AF 100-400mm F4.5-6.7 APO</translation>
    </message>
    <message>
        <source>Sony:LensType:15</source>
        <translation>Minolta AF 400mm F4.5 HS-APO G</translation>
    </message>
    <message>
        <source>Sony:LensType:16</source>
        <translation>Minolta AF 17-35mm F3.5 G</translation>
    </message>
    <message>
        <source>Sony:LensType:17</source>
        <translation>Minolta AF 20-35mm F3.5-4.5</translation>
    </message>
    <message>
        <source>Sony:LensType:18</source>
        <translation>Minolta AF 28-80mm F3.5-5.6 II</translation>
    </message>
    <message>
        <source>Sony:LensType:19</source>
        <translation>Minolta AF 35mm F1.4 G</translation>
    </message>
    <message>
        <source>Sony:LensType:20</source>
        <translation>Minolta/Sony 135mm F2.8 [T4.5] STF</translation>
    </message>
    <message>
        <source>Sony:LensType:22</source>
        <translation>Minolta AF 35-80mm F4-5.6 II</translation>
    </message>
    <message>
        <source>Sony:LensType:23</source>
        <translation>Minolta AF 200mm F4 Macro APO G</translation>
    </message>
    <message>
        <source>Sony:LensType:24</source>
        <translation>Minolta/Sony AF 24-105mm F3.5-4.5 (D) or Sigma or Tamron Lens or Sigma 18-50mm F2.8 or Sigma 17-70mm F2.8-4.5 DC Macro or Sigma 20-40mm F2.8 EX DG Aspherical IF or Sigma 18-200mm F3.5-6.3 DC or Sigma DC 18-125mm F4-5,6 D or Tamron SP AF 28-75mm F2.8 XR Di LD Aspherical [IF] Macro or Sigma 15-30mm F3.5-4.5 EX DG Aspherical</translation>
    </message>
    <message>
        <source>Sony:LensType:25</source>
        <translation>Minolta AF 100-300mm F4.5-5.6 APO (D) or Sigma Lens or Sigma 100-300mm F4 EX (APO (D) or D IF) or Sigma 70mm F2.8 EX DG Macro or Sigma 20mm F1.8 EX DG Aspherical RF or Sigma 30mm F1.4 EX DC or Sigma 24mm F1.8 EX DG ASP Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:27</source>
        <translation>Minolta AF 85mm F1.4 G (D)</translation>
    </message>
    <message>
        <source>Sony:LensType:28</source>
        <translation>Minolta/Sony AF 100mm F2.8 Macro (D) or Tamron Lens or Tamron SP AF 90mm F2.8 Di Macro or Tamron SP AF 180mm F3.5 Di LD [IF] Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:29</source>
        <translation>Minolta/Sony AF 75-300mm F4.5-5.6 (D)</translation>
    </message>
    <message>
        <source>Sony:LensType:30</source>
        <translation>Minolta AF 28-80mm F3.5-5.6 (D) or Sigma Lens or Sigma AF 10-20mm F4-5.6 EX DC or Sigma AF 12-24mm F4.5-5.6 EX DG or Sigma 28-70mm EX DG F2.8 or Sigma 55-200mm F4-5.6 DC</translation>
    </message>
    <message>
        <source>Sony:LensType:31</source>
        <translation>Minolta/Sony AF 50mm F2.8 Macro (D) or F3.5 or Minolta/Sony AF 50mm F3.5 Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:32</source>
        <translation>Minolta/Sony AF 300mm F2.8 G or 1.5x Teleconverter</translation>
    </message>
    <message>
        <source>Sony:LensType:33</source>
        <translation>Minolta/Sony AF 70-200mm F2.8 G</translation>
    </message>
    <message>
        <source>Sony:LensType:35</source>
        <translation>Minolta AF 85mm F1.4 G (D) Limited</translation>
    </message>
    <message>
        <source>Sony:LensType:36</source>
        <translation>Minolta AF 28-100mm F3.5-5.6 (D)</translation>
    </message>
    <message>
        <source>Sony:LensType:38</source>
        <translation>Minolta AF 17-35mm F2.8-4 (D)</translation>
    </message>
    <message>
        <source>Sony:LensType:39</source>
        <translation>Minolta AF 28-75mm F2.8 (D)</translation>
    </message>
    <message>
        <source>Sony:LensType:40</source>
        <translation>Minolta/Sony AF DT 18-70mm F3.5-5.6 (D)</translation>
    </message>
    <message>
        <source>Sony:LensType:41</source>
        <translation>Minolta/Sony AF DT 11-18mm F4.5-5.6 (D) or Tamron Lens or Tamron SP AF 11-18mm F4.5-5.6 Di II LD Aspherical IF</translation>
    </message>
    <message>
        <source>Sony:LensType:42</source>
        <translation>Minolta/Sony AF DT 18-200mm F3.5-6.3 (D)</translation>
    </message>
    <message>
        <source>Sony:LensType:43</source>
        <translation>Sony 35mm F1.4 G (SAL35F14G)</translation>
    </message>
    <message>
        <source>Sony:LensType:44</source>
        <translation>Sony 50mm F1.4 (SAL50F14)</translation>
    </message>
    <message>
        <source>Sony:LensType:45</source>
        <translation>Carl Zeiss Planar T* 85mm F1.4 ZA (SAL85F14Z)</translation>
    </message>
    <message>
        <source>Sony:LensType:46</source>
        <translation>Carl Zeiss Vario-Sonnar T* DT 16-80mm F3.5-4.5 ZA (SAL1680Z)</translation>
    </message>
    <message>
        <source>Sony:LensType:47</source>
        <translation>Carl Zeiss Sonnar T* 135mm F1.8 ZA (SAL135F18Z)</translation>
    </message>
    <message>
        <source>Sony:LensType:48</source>
        <translation>Carl Zeiss Vario-Sonnar T* 24-70mm F2.8 ZA SSM (SAL2470Z) or Other Lens or Carl Zeiss Vario-Sonnar T* 24-70mm F2.8 ZA SSM II (SAL2470Z2) or Tamron SP 24-70mm F2.8 Di USD</translation>
    </message>
    <message>
        <source>Sony:LensType:49</source>
        <translation>Sony DT 55-200mm F4-5.6 (SAL55200)</translation>
    </message>
    <message>
        <source>Sony:LensType:50</source>
        <translation>Sony DT 18-250mm F3.5-6.3 (SAL18250)</translation>
    </message>
    <message>
        <source>Sony:LensType:51</source>
        <translation>Sony DT 16-105mm F3.5-5.6 (SAL16105)</translation>
    </message>
    <message>
        <source>Sony:LensType:52</source>
        <translation>Sony 70-300mm F4.5-5.6 G SSM (SAL70300G) or G SSM II or Tamron Lens or Sony 70-300mm F4.5-5.6 G SSM II (SAL70300G2) or Tamron SP 70-300mm F4-5.6 Di USD</translation>
    </message>
    <message>
        <source>Sony:LensType:53</source>
        <translation>Sony 70-400mm F4-5.6 G SSM (SAL70400G)</translation>
    </message>
    <message>
        <source>Sony:LensType:54</source>
        <translation>Carl Zeiss Vario-Sonnar T* 16-35mm F2.8 ZA SSM (SAL1635Z) or ZA SSM II or Carl Zeiss Vario-Sonnar T* 16-35mm F2.8 ZA SSM II (SAL1635Z2)</translation>
    </message>
    <message>
        <source>Sony:LensType:55</source>
        <translation>Sony DT 18-55mm F3.5-5.6 SAM (SAL1855) or SAM II or Sony DT 18-55mm F3.5-5.6 SAM II (SAL18552)</translation>
    </message>
    <message>
        <source>Sony:LensType:56</source>
        <translation>Sony DT 55-200mm F4-5.6 SAM (SAL55200-2)</translation>
    </message>
    <message>
        <source>Sony:LensType:57</source>
        <translation>Sony DT 50mm F1.8 SAM (SAL50F18) or Tamron Lens or Commlite CM-EF-NEX adapter or Tamron SP AF 60mm F2 Di II LD [IF] Macro 1:1 or Tamron 18-270mm F3.5-6.3 Di II PZD</translation>
    </message>
    <message>
        <source>Sony:LensType:58</source>
        <translation>Sony DT 30mm F2.8 Macro SAM (SAL30M28)</translation>
    </message>
    <message>
        <source>Sony:LensType:59</source>
        <translation>Sony 28-75mm F2.8 SAM (SAL2875)</translation>
    </message>
    <message>
        <source>Sony:LensType:60</source>
        <translation>Carl Zeiss Distagon T* 24mm F2 ZA SSM (SAL24F20Z)</translation>
    </message>
    <message>
        <source>Sony:LensType:61</source>
        <translation>Sony 85mm F2.8 SAM (SAL85F28)</translation>
    </message>
    <message>
        <source>Sony:LensType:62</source>
        <translation>Sony DT 35mm F1.8 SAM (SAL35F18)</translation>
    </message>
    <message>
        <source>Sony:LensType:63</source>
        <translation>Sony DT 16-50mm F2.8 SSM (SAL1650)</translation>
    </message>
    <message>
        <source>Sony:LensType:64</source>
        <translation>Sony 500mm F4 G SSM (SAL500F40G)</translation>
    </message>
    <message>
        <source>Sony:LensType:65</source>
        <translation>Sony DT 18-135mm F3.5-5.6 SAM (SAL18135)</translation>
    </message>
    <message>
        <source>Sony:LensType:66</source>
        <translation>Sony 300mm F2.8 G SSM II (SAL300F28G2)</translation>
    </message>
    <message>
        <source>Sony:LensType:67</source>
        <translation>Sony 70-200mm F2.8 G SSM II (SAL70200G2)</translation>
    </message>
    <message>
        <source>Sony:LensType:68</source>
        <translation>Sony DT 55-300mm F4.5-5.6 SAM (SAL55300)</translation>
    </message>
    <message>
        <source>Sony:LensType:69</source>
        <translation>Sony 70-400mm F4-5.6 G SSM II (SAL70400G2)</translation>
    </message>
    <message>
        <source>Sony:LensType:70</source>
        <translation>Carl Zeiss Planar T* 50mm F1.4 ZA SSM (SAL50F14Z)</translation>
    </message>
    <message>
        <source>Sony:LensType:128</source>
        <translation>Tamron or Sigma Lens (128) or Tamron AF 18-200mm F3.5-6.3 XR Di II LD Aspherical [IF] Macro or Tamron AF 28-300mm F3.5-6.3 XR Di LD Aspherical [IF] Macro or Tamron AF 28-200mm F3.8-5.6 XR Di Aspherical [IF] Macro or Tamron SP AF 17-35mm F2.8-4 Di LD Aspherical IF or Sigma AF 50-150mm F2.8 EX DC APO HSM II or Sigma 10-20mm F3.5 EX DC HSM or Sigma 70-200mm F2.8 II EX DG APO MACRO HSM or Sigma 10mm F2.8 EX DC HSM Fisheye or Sigma 50mm F1.4 EX DG HSM or Sigma 85mm F1.4 EX DG HSM or Sigma 24-70mm F2.8 IF EX DG HSM or Sigma 18-250mm F3.5-6.3 DC OS HSM or Sigma 17-50mm F2.8 EX DC HSM or Sigma 17-70mm F2.8-4 DC Macro HSM or Sigma 150mm F2.8 EX DG OS HSM APO Macro or Sigma 150-500mm F5-6.3 APO DG OS HSM or Tamron AF 28-105mm F4-5.6 [IF] or Sigma 35mm F1.4 DG HSM or Sigma 18-35mm F1.8 DC HSM or Sigma 50-500mm F4.5-6.3 APO DG OS HSM or Sigma 24-105mm F4 DG HSM | A or Sigma 30mm F1.4 or Sigma 35mm F1.4 DG HSM | A or Sigma 105mm F2.8 EX DG OS HSM Macro or Sigma 180mm F2.8 EX DG OS HSM APO Macro or Sigma 18-300mm F3.5-6.3 DC Macro HSM | C or Sigma 18-50mm F2.8-4.5 DC HSM</translation>
    </message>
    <message>
        <source>Sony:LensType:129</source>
        <translation>Tamron Lens (129) or Tamron 200-400mm F5.6 LD or Tamron 70-300mm F4-5.6 LD</translation>
    </message>
    <message>
        <source>Sony:LensType:131</source>
        <translation>Tamron 20-40mm F2.7-3.5 SP Aspherical IF</translation>
    </message>
    <message>
        <source>Sony:LensType:135</source>
        <translation>Vivitar 28-210mm F3.5-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:136</source>
        <translation>Tokina EMZ M100 AF 100mm F3.5</translation>
    </message>
    <message>
        <source>Sony:LensType:137</source>
        <translation>Cosina 70-210mm F2.8-4 AF</translation>
    </message>
    <message>
        <source>Sony:LensType:138</source>
        <translation>Soligor 19-35mm F3.5-4.5</translation>
    </message>
    <message>
        <source>Sony:LensType:139</source>
        <translation>Tokina AF 28-300mm F4-6.3</translation>
    </message>
    <message>
        <source>Sony:LensType:142</source>
        <translation>Cosina AF 70-300mm F4.5-5.6 MC</translation>
    </message>
    <message>
        <source>Sony:LensType:146</source>
        <translation>Voigtlander Macro APO-Lanthar 125mm F2.5 SL</translation>
    </message>
    <message>
        <source>Sony:LensType:194</source>
        <translation>Tamron SP AF 17-50mm F2.8 XR Di II LD Aspherical [IF]</translation>
    </message>
    <message>
        <source>Sony:LensType:202</source>
        <translation>Tamron SP AF 70-200mm F2.8 Di LD [IF] Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:203</source>
        <translation>Tamron SP 70-200mm F2.8 Di USD</translation>
    </message>
    <message>
        <source>Sony:LensType:204</source>
        <translation>Tamron SP 24-70mm F2.8 Di USD</translation>
    </message>
    <message>
        <source>Sony:LensType:212</source>
        <translation>Tamron 28-300mm F3.5-6.3 Di PZD</translation>
    </message>
    <message>
        <source>Sony:LensType:213</source>
        <translation>Tamron 16-300mm F3.5-6.3 Di II PZD Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:214</source>
        <translation>Tamron SP 150-600mm F5-6.3 Di USD</translation>
    </message>
    <message>
        <source>Sony:LensType:215</source>
        <translation>Tamron SP 15-30mm F2.8 Di USD</translation>
    </message>
    <message>
        <source>Sony:LensType:216</source>
        <translation>Tamron SP 45mm F1.8 Di USD</translation>
    </message>
    <message>
        <source>Sony:LensType:217</source>
        <translation>Tamron SP 35mm F1.8 Di USD</translation>
    </message>
    <message>
        <source>Sony:LensType:218</source>
        <translation>Tamron SP 90mm F2.8 Di Macro 1:1 USD (F017)</translation>
    </message>
    <message>
        <source>Sony:LensType:220</source>
        <translation>Tamron SP 150-600mm F5-6.3 Di USD G2</translation>
    </message>
    <message>
        <source>Sony:LensType:224</source>
        <translation>Tamron SP 90mm F2.8 Di Macro 1:1 USD (F004)</translation>
    </message>
    <message>
        <source>Sony:LensType:255</source>
        <translation>Tamron Lens (255) or Tamron SP AF 17-50mm F2.8 XR Di II LD Aspherical or Tamron AF 18-250mm F3.5-6.3 XR Di II LD or Tamron AF 55-200mm F4-5.6 Di II LD Macro or Tamron AF 70-300mm F4-5.6 Di LD Macro 1:2 or Tamron SP AF 200-500mm F5.0-6.3 Di LD IF or Tamron SP AF 10-24mm F3.5-4.5 Di II LD Aspherical IF or Tamron SP AF 70-200mm F2.8 Di LD IF Macro or Tamron SP AF 28-75mm F2.8 XR Di LD Aspherical IF or Tamron AF 90-300mm F4.5-5.6 Telemacro</translation>
    </message>
    <message>
        <source>Sony:LensType:1868</source>
        <translation>Sigma MC-11 SA-E Mount Converter with not-supported Sigma lens</translation>
    </message>
    <message>
        <source>Sony:LensType:2550</source>
        <translation>Minolta AF 50mm F1.7</translation>
    </message>
    <message>
        <source>Sony:LensType:2551</source>
        <translation>Minolta AF 35-70mm F4 or Other Lens or Sigma UC AF 28-70mm F3.5-4.5 or Sigma AF 28-70mm F2.8 or Sigma M-AF 70-200mm F2.8 EX Aspherical or Quantaray M-AF 35-80mm F4-5.6 or Tokina 28-70mm F2.8-4.5 AF</translation>
    </message>
    <message>
        <source>Sony:LensType:2552</source>
        <translation>Minolta AF 28-85mm F3.5-4.5 or Other Lens or Tokina 19-35mm F3.5-4.5 or Tokina 28-70mm F2.8 AT-X or Tokina 80-400mm F4.5-5.6 AT-X AF II 840 or Tokina AF PRO 28-80mm F2.8 AT-X 280 or Tokina AT-X PRO [II] AF 28-70mm F2.6-2.8 270 or Tamron AF 19-35mm F3.5-4.5 or Angenieux AF 28-70mm F2.6 or Tokina AT-X 17 AF 17mm F3.5 or Tokina 20-35mm F3.5-4.5 II AF</translation>
    </message>
    <message>
        <source>Sony:LensType:2553</source>
        <translation>Minolta AF 28-135mm F4-4.5 or Other Lens or Sigma ZOOM-alpha 35-135mm F3.5-4.5 or Sigma 28-105mm F2.8-4 Aspherical or Sigma 28-105mm F4-5.6 UC or Tokina AT-X 242 AF 24-200mm F3.5-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:2554</source>
        <translation>Minolta AF 35-105mm F3.5-4.5</translation>
    </message>
    <message>
        <source>Sony:LensType:2555</source>
        <translation>Minolta AF 70-210mm F4 Macro or Sigma Lens or Sigma 70-210mm F4-5.6 APO or Sigma M-AF 70-200mm F2.8 EX APO or Sigma 75-200mm F2.8-3.5</translation>
    </message>
    <message>
        <source>Sony:LensType:2556</source>
        <translation>Minolta AF 135mm F2.8</translation>
    </message>
    <message>
        <source>Sony:LensType:2557</source>
        <translation>Minolta/Sony AF 28mm F2.8</translation>
    </message>
    <message>
        <source>Sony:LensType:2558</source>
        <translation>Minolta AF 24-50mm F4</translation>
    </message>
    <message>
        <source>Sony:LensType:2560</source>
        <translation>Minolta AF 100-200mm F4.5</translation>
    </message>
    <message>
        <source>Sony:LensType:2561</source>
        <translation>Minolta AF 75-300mm F4.5-5.6 or Sigma Lens or Sigma 70-300mm F4-5.6 DL Macro or Sigma 300mm F4 APO Macro or Sigma AF 500mm F4.5 APO or Sigma AF 170-500mm F5-6.3 APO Aspherical or Tokina AT-X AF 300mm F4 or Tokina AT-X AF 400mm F5.6 SD or Tokina AF 730 II 75-300mm F4.5-5.6 or Sigma 800mm F5.6 APO or Sigma AF 400mm F5.6 APO Macro or Sigma 1000mm F8 APO</translation>
    </message>
    <message>
        <source>Sony:LensType:2562</source>
        <translation>Minolta AF 50mm F1.4 [New]</translation>
    </message>
    <message>
        <source>Sony:LensType:2563</source>
        <translation>Minolta AF 300mm F2.8 APO or Sigma Lens or Sigma AF 50-500mm F4-6.3 EX DG APO or Sigma AF 170-500mm F5-6.3 APO Aspherical or Sigma AF 500mm F4.5 EX DG APO or Sigma 400mm F5.6 APO</translation>
    </message>
    <message>
        <source>Sony:LensType:2564</source>
        <translation>Minolta AF 50mm F2.8 Macro or Sigma Lens or Sigma 50mm F2.8 EX Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:2565</source>
        <translation>Minolta AF 600mm F4 APO</translation>
    </message>
    <message>
        <source>Sony:LensType:2566</source>
        <translation>Minolta AF 24mm F2.8 or Sigma Lens or Sigma 17-35mm F2.8-4 EX Aspherical</translation>
    </message>
    <message>
        <source>Sony:LensType:2572</source>
        <translation>Minolta/Sony AF 500mm F8 Reflex</translation>
    </message>
    <message>
        <source>Sony:LensType:2578</source>
        <translation>Minolta/Sony AF 16mm F2.8 Fisheye or Sigma Lens or Sigma 8mm F4 EX [DG] Fisheye or Sigma 14mm F3.5 or Sigma 15mm F2.8 Fisheye</translation>
    </message>
    <message>
        <source>Sony:LensType:2579</source>
        <translation>Minolta/Sony AF 20mm F2.8 or Tokina Lens or Tokina AT-X Pro DX 11-16mm F2.8</translation>
    </message>
    <message>
        <source>Sony:LensType:2581</source>
        <translation>Minolta AF 100mm F2.8 Macro [New] or Sigma or Tamron Lens or Sigma AF 90mm F2.8 Macro or Sigma AF 105mm F2.8 EX [DG] Macro or Sigma 180mm F5.6 Macro or Sigma 180mm F3.5 EX DG Macro or Tamron 90mm F2.8 Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:2585</source>
        <translation>Minolta AF 35-105mm F3.5-4.5 New or Tamron Lens or Beroflex 35-135mm F3.5-4.5 or Tamron 24-135mm F3.5-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:2588</source>
        <translation>Minolta AF 70-210mm F3.5-4.5</translation>
    </message>
    <message>
        <source>Sony:LensType:2589</source>
        <translation>Minolta AF 80-200mm F2.8 APO or Tokina Lens or Tokina 80-200mm F2.8</translation>
    </message>
    <message>
        <source>Sony:LensType:2590</source>
        <translation>Minolta AF 200mm F2.8 G APO + Minolta AF 1.4x APO or Other Lens + 1.4x or Minolta AF 600mm F4 HS-APO G + Minolta AF 1.4x APO</translation>
    </message>
    <message>
        <source>Sony:LensType:2591</source>
        <translation>Minolta AF 35mm F1.4</translation>
    </message>
    <message>
        <source>Sony:LensType:2592</source>
        <translation>Minolta AF 85mm F1.4 G (D)</translation>
    </message>
    <message>
        <source>Sony:LensType:2593</source>
        <translation>Minolta AF 200mm F2.8 APO</translation>
    </message>
    <message>
        <source>Sony:LensType:2594</source>
        <translation>Minolta AF 3x-1x F1.7-2.8 Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:2596</source>
        <translation>Minolta AF 28mm F2</translation>
    </message>
    <message>
        <source>Sony:LensType:2597</source>
        <translation>Minolta AF 35mm F2 [New]</translation>
    </message>
    <message>
        <source>Sony:LensType:2598</source>
        <translation>Minolta AF 100mm F2</translation>
    </message>
    <message>
        <source>Sony:LensType:2601</source>
        <translation>Minolta AF 200mm F2.8 G APO + Minolta AF 2x APO or Other Lens + 2x or Minolta AF 600mm F4 HS-APO G + Minolta AF 2x APO</translation>
    </message>
    <message>
        <source>Sony:LensType:2604</source>
        <translation>Minolta AF 80-200mm F4.5-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:2605</source>
        <translation>Minolta AF 35-80mm F4-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:2606</source>
        <translation>Minolta AF 100-300mm F4.5-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:2607</source>
        <translation>Minolta AF 35-80mm F4-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:2608</source>
        <translation>Minolta AF 300mm F2.8 HS-APO G</translation>
    </message>
    <message>
        <source>Sony:LensType:2609</source>
        <translation>Minolta AF 600mm F4 HS-APO G</translation>
    </message>
    <message>
        <source>Sony:LensType:2612</source>
        <translation>Minolta AF 200mm F2.8 HS-APO G</translation>
    </message>
    <message>
        <source>Sony:LensType:2613</source>
        <translation>Minolta AF 50mm F1.7 New</translation>
    </message>
    <message>
        <source>Sony:LensType:2615</source>
        <translation>Minolta AF 28-105mm F3.5-4.5 xi</translation>
    </message>
    <message>
        <source>Sony:LensType:2616</source>
        <translation>Minolta AF 35-200mm F4.5-5.6 xi</translation>
    </message>
    <message>
        <source>Sony:LensType:2618</source>
        <translation>Minolta AF 28-80mm F4-5.6 xi</translation>
    </message>
    <message>
        <source>Sony:LensType:2619</source>
        <translation>Minolta AF 80-200mm F4.5-5.6 xi</translation>
    </message>
    <message>
        <source>Sony:LensType:2620</source>
        <translation>Minolta AF 28-70mm F2.8 G</translation>
    </message>
    <message>
        <source>Sony:LensType:2621</source>
        <translation>Minolta AF 100-300mm F4.5-5.6 xi</translation>
    </message>
    <message>
        <source>Sony:LensType:2624</source>
        <translation>Minolta AF 35-80mm F4-5.6 Power Zoom</translation>
    </message>
    <message>
        <source>Sony:LensType:2628</source>
        <translation>Minolta AF 80-200mm F2.8 HS-APO G</translation>
    </message>
    <message>
        <source>Sony:LensType:2629</source>
        <translation>Minolta AF 85mm F1.4 New</translation>
    </message>
    <message>
        <source>Sony:LensType:2631</source>
        <translation>Minolta AF 100-300mm F4.5-5.6 APO</translation>
    </message>
    <message>
        <source>Sony:LensType:2632</source>
        <translation>Minolta AF 24-50mm F4 New</translation>
    </message>
    <message>
        <source>Sony:LensType:2638</source>
        <translation>Minolta AF 50mm F2.8 Macro New</translation>
    </message>
    <message>
        <source>Sony:LensType:2639</source>
        <translation>Minolta AF 100mm F2.8 Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:2641</source>
        <translation>Minolta/Sony AF 20mm F2.8 New</translation>
    </message>
    <message>
        <source>Sony:LensType:2642</source>
        <translation>Minolta AF 24mm F2.8 New</translation>
    </message>
    <message>
        <source>Sony:LensType:2644</source>
        <translation>Minolta AF 100-400mm F4.5-6.7 APO</translation>
    </message>
    <message>
        <source>Sony:LensType:2662</source>
        <translation>Minolta AF 50mm F1.4 New</translation>
    </message>
    <message>
        <source>Sony:LensType:2667</source>
        <translation>Minolta AF 35mm F2 New</translation>
    </message>
    <message>
        <source>Sony:LensType:2668</source>
        <translation>Minolta AF 28mm F2 New</translation>
    </message>
    <message>
        <source>Sony:LensType:2672</source>
        <translation>Minolta AF 24-105mm F3.5-4.5 (D)</translation>
    </message>
    <message>
        <source>Sony:LensType:3046</source>
        <translation>Metabones Canon EF Speed Booster</translation>
    </message>
    <message>
        <source>Sony:LensType:4567</source>
        <translation>Tokina 70-210mm F4-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:4568</source>
        <translation>Tokina AF 35-200mm F4-5.6 Zoom SD</translation>
    </message>
    <message>
        <source>Sony:LensType:4570</source>
        <translation>Tamron AF 35-135mm F3.5-4.5</translation>
    </message>
    <message>
        <source>Sony:LensType:4571</source>
        <translation>Vivitar 70-210mm F4.5-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:4574</source>
        <translation>2x Teleconverter or Tamron or Tokina Lens or Tamron SP AF 90mm F2.5 or Tokina RF 500mm F8.0 x2 or Tokina 300mm F2.8 x2</translation>
    </message>
    <message>
        <source>Sony:LensType:4575</source>
        <translation>1.4x Teleconverter</translation>
    </message>
    <message>
        <source>Sony:LensType:4585</source>
        <translation>Tamron SP AF 300mm F2.8 LD IF</translation>
    </message>
    <message>
        <source>Sony:LensType:4586</source>
        <translation>Tamron SP AF 35-105mm F2.8 LD Aspherical IF</translation>
    </message>
    <message>
        <source>Sony:LensType:4587</source>
        <translation>Tamron AF 70-210mm F2.8 SP LD</translation>
    </message>
    <message>
        <source>Sony:LensType:4812</source>
        <translation>Metabones Canon EF Speed Booster Ultra</translation>
    </message>
    <message>
        <source>Sony:LensType:6118</source>
        <translation>Canon EF Adapter</translation>
    </message>
    <message>
        <source>Sony:LensType:6528</source>
        <translation>Sigma 16mm F2.8 Filtermatic Fisheye</translation>
    </message>
    <message>
        <source>Sony:LensType:6553</source>
        <translation>E-Mount, T-Mount, Other Lens or no lens or Arax MC 35mm F2.8 Tilt+Shift or Arax MC 80mm F2.8 Tilt+Shift or Zenitar MF 16mm F2.8 Fisheye M42 or Samyang 500mm Mirror F8.0 or Pentacon Auto 135mm F2.8 or Pentacon Auto 29mm F2.8 or Helios 44-2 58mm F2.0</translation>
    </message>
    <message>
        <source>Sony:LensType:18688</source>
        <translation>Sigma MC-11 SA-E Mount Converter with not-supported Sigma lens</translation>
    </message>
    <message>
        <source>Sony:LensType:25501</source>
        <translation>Minolta AF 50mm F1.7</translation>
    </message>
    <message>
        <source>Sony:LensType:25511</source>
        <translation>Minolta AF 35-70mm F4 or Other Lens or Sigma UC AF 28-70mm F3.5-4.5 or Sigma AF 28-70mm F2.8 or Sigma M-AF 70-200mm F2.8 EX Aspherical or Quantaray M-AF 35-80mm F4-5.6 or Tokina 28-70mm F2.8-4.5 AF</translation>
    </message>
    <message>
        <source>Sony:LensType:25521</source>
        <translation>Minolta AF 28-85mm F3.5-4.5 or Other Lens or Tokina 19-35mm F3.5-4.5 or Tokina 28-70mm F2.8 AT-X or Tokina 80-400mm F4.5-5.6 AT-X AF II 840 or Tokina AF PRO 28-80mm F2.8 AT-X 280 or Tokina AT-X PRO [II] AF 28-70mm F2.6-2.8 270 or Tamron AF 19-35mm F3.5-4.5 or Angenieux AF 28-70mm F2.6 or Tokina AT-X 17 AF 17mm F3.5 or Tokina 20-35mm F3.5-4.5 II AF</translation>
    </message>
    <message>
        <source>Sony:LensType:25531</source>
        <translation>Minolta AF 28-135mm F4-4.5 or Other Lens or Sigma ZOOM-alpha 35-135mm F3.5-4.5 or Sigma 28-105mm F2.8-4 Aspherical or Sigma 28-105mm F4-5.6 UC or Tokina AT-X 242 AF 24-200mm F3.5-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:25541</source>
        <translation>Minolta AF 35-105mm F3.5-4.5</translation>
    </message>
    <message>
        <source>Sony:LensType:25551</source>
        <translation>Minolta AF 70-210mm F4 Macro or Sigma Lens or Sigma 70-210mm F4-5.6 APO or Sigma M-AF 70-200mm F2.8 EX APO or Sigma 75-200mm F2.8-3.5</translation>
    </message>
    <message>
        <source>Sony:LensType:25561</source>
        <translation>Minolta AF 135mm F2.8</translation>
    </message>
    <message>
        <source>Sony:LensType:25571</source>
        <translation>Minolta/Sony AF 28mm F2.8</translation>
    </message>
    <message>
        <source>Sony:LensType:25581</source>
        <translation>Minolta AF 24-50mm F4</translation>
    </message>
    <message>
        <source>Sony:LensType:25601</source>
        <translation>Minolta AF 100-200mm F4.5</translation>
    </message>
    <message>
        <source>Sony:LensType:25611</source>
        <translation>Minolta AF 75-300mm F4.5-5.6 or Sigma Lens or Sigma 70-300mm F4-5.6 DL Macro or Sigma 300mm F4 APO Macro or Sigma AF 500mm F4.5 APO or Sigma AF 170-500mm F5-6.3 APO Aspherical or Tokina AT-X AF 300mm F4 or Tokina AT-X AF 400mm F5.6 SD or Tokina AF 730 II 75-300mm F4.5-5.6 or Sigma 800mm F5.6 APO or Sigma AF 400mm F5.6 APO Macro or Sigma 1000mm F8 APO</translation>
    </message>
    <message>
        <source>Sony:LensType:25621</source>
        <translation>Minolta AF 50mm F1.4 [New]</translation>
    </message>
    <message>
        <source>Sony:LensType:25631</source>
        <translation>Minolta AF 300mm F2.8 APO or Sigma Lens or Sigma AF 50-500mm F4-6.3 EX DG APO or Sigma AF 170-500mm F5-6.3 APO Aspherical or Sigma AF 500mm F4.5 EX DG APO or Sigma 400mm F5.6 APO</translation>
    </message>
    <message>
        <source>Sony:LensType:25641</source>
        <translation>Minolta AF 50mm F2.8 Macro or Sigma Lens or Sigma 50mm F2.8 EX Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:25651</source>
        <translation>Minolta AF 600mm F4 APO</translation>
    </message>
    <message>
        <source>Sony:LensType:25661</source>
        <translation>Minolta AF 24mm F2.8 or Sigma Lens or Sigma 17-35mm F2.8-4 EX Aspherical</translation>
    </message>
    <message>
        <source>Sony:LensType:25721</source>
        <translation>Minolta/Sony AF 500mm F8 Reflex</translation>
    </message>
    <message>
        <source>Sony:LensType:25781</source>
        <translation>Minolta/Sony AF 16mm F2.8 Fisheye or Sigma Lens or Sigma 8mm F4 EX [DG] Fisheye or Sigma 14mm F3.5 or Sigma 15mm F2.8 Fisheye</translation>
    </message>
    <message>
        <source>Sony:LensType:25791</source>
        <translation>Minolta/Sony AF 20mm F2.8 or Tokina Lens or Tokina AT-X Pro DX 11-16mm F2.8</translation>
    </message>
    <message>
        <source>Sony:LensType:25811</source>
        <translation>Minolta AF 100mm F2.8 Macro [New] or Sigma or Tamron Lens or Sigma AF 90mm F2.8 Macro or Sigma AF 105mm F2.8 EX [DG] Macro or Sigma 180mm F5.6 Macro or Sigma 180mm F3.5 EX DG Macro or Tamron 90mm F2.8 Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:25851</source>
        <translation>Beroflex 35-135mm F3.5-4.5</translation>
    </message>
    <message>
        <source>Sony:LensType:25858</source>
        <translation>Minolta AF 35-105mm F3.5-4.5 New or Tamron Lens or Tamron 24-135mm F3.5-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:25881</source>
        <translation>Minolta AF 70-210mm F3.5-4.5</translation>
    </message>
    <message>
        <source>Sony:LensType:25891</source>
        <translation>Minolta AF 80-200mm F2.8 APO or Tokina Lens or Tokina 80-200mm F2.8</translation>
    </message>
    <message>
        <source>Sony:LensType:25901</source>
        <translation>Minolta AF 200mm F2.8 G APO + Minolta AF 1.4x APO or Other Lens + 1.4x or Minolta AF 600mm F4 HS-APO G + Minolta AF 1.4x APO</translation>
    </message>
    <message>
        <source>Sony:LensType:25911</source>
        <translation>Minolta AF 35mm F1.4</translation>
    </message>
    <message>
        <source>Sony:LensType:25921</source>
        <translation>Minolta AF 85mm F1.4 G (D)</translation>
    </message>
    <message>
        <source>Sony:LensType:25931</source>
        <translation>Minolta AF 200mm F2.8 APO</translation>
    </message>
    <message>
        <source>Sony:LensType:25941</source>
        <translation>Minolta AF 3x-1x F1.7-2.8 Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:25961</source>
        <translation>Minolta AF 28mm F2</translation>
    </message>
    <message>
        <source>Sony:LensType:25971</source>
        <translation>Minolta AF 35mm F2 [New]</translation>
    </message>
    <message>
        <source>Sony:LensType:25981</source>
        <translation>Minolta AF 100mm F2</translation>
    </message>
    <message>
        <source>Sony:LensType:26011</source>
        <translation>Minolta AF 200mm F2.8 G APO + Minolta AF 2x APO or Other Lens + 2x or Minolta AF 600mm F4 HS-APO G + Minolta AF 2x APO</translation>
    </message>
    <message>
        <source>Sony:LensType:26041</source>
        <translation>Minolta AF 80-200mm F4.5-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:26051</source>
        <translation>Minolta AF 35-80mm F4-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:26061</source>
        <translation>Minolta AF 100-300mm F4.5-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:26071</source>
        <translation>Minolta AF 35-80mm F4-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:26081</source>
        <translation>Minolta AF 300mm F2.8 HS-APO G</translation>
    </message>
    <message>
        <source>Sony:LensType:26091</source>
        <translation>Minolta AF 600mm F4 HS-APO G</translation>
    </message>
    <message>
        <source>Sony:LensType:26121</source>
        <translation>Minolta AF 200mm F2.8 HS-APO G</translation>
    </message>
    <message>
        <source>Sony:LensType:26131</source>
        <translation>Minolta AF 50mm F1.7 New</translation>
    </message>
    <message>
        <source>Sony:LensType:26151</source>
        <translation>Minolta AF 28-105mm F3.5-4.5 xi</translation>
    </message>
    <message>
        <source>Sony:LensType:26161</source>
        <translation>Minolta AF 35-200mm F4.5-5.6 xi</translation>
    </message>
    <message>
        <source>Sony:LensType:26181</source>
        <translation>Minolta AF 28-80mm F4-5.6 xi</translation>
    </message>
    <message>
        <source>Sony:LensType:26191</source>
        <translation>Minolta AF 80-200mm F4.5-5.6 xi</translation>
    </message>
    <message>
        <source>Sony:LensType:26201</source>
        <translation>Minolta AF 28-70mm F2.8 G</translation>
    </message>
    <message>
        <source>Sony:LensType:26211</source>
        <translation>Minolta AF 100-300mm F4.5-5.6 xi</translation>
    </message>
    <message>
        <source>Sony:LensType:26241</source>
        <translation>Minolta AF 35-80mm F4-5.6 Power Zoom</translation>
    </message>
    <message>
        <source>Sony:LensType:26281</source>
        <translation>Minolta AF 80-200mm F2.8 HS-APO G</translation>
    </message>
    <message>
        <source>Sony:LensType:26291</source>
        <translation>Minolta AF 85mm F1.4 New</translation>
    </message>
    <message>
        <source>Sony:LensType:26311</source>
        <translation>Minolta AF 100-300mm F4.5-5.6 APO</translation>
    </message>
    <message>
        <source>Sony:LensType:26321</source>
        <translation>Minolta AF 24-50mm F4 New</translation>
    </message>
    <message>
        <source>Sony:LensType:26381</source>
        <translation>Minolta AF 50mm F2.8 Macro New</translation>
    </message>
    <message>
        <source>Sony:LensType:26391</source>
        <translation>Minolta AF 100mm F2.8 Macro</translation>
    </message>
    <message>
        <source>Sony:LensType:26411</source>
        <translation>Minolta/Sony AF 20mm F2.8 New</translation>
    </message>
    <message>
        <source>Sony:LensType:26421</source>
        <translation>Minolta AF 24mm F2.8 New</translation>
    </message>
    <message>
        <source>Sony:LensType:26441</source>
        <translation>Minolta AF 100-400mm F4.5-6.7 APO</translation>
    </message>
    <message>
        <source>Sony:LensType:26621</source>
        <translation>Minolta AF 50mm F1.4 New</translation>
    </message>
    <message>
        <source>Sony:LensType:26671</source>
        <translation>Minolta AF 35mm F2 New</translation>
    </message>
    <message>
        <source>Sony:LensType:26681</source>
        <translation>Minolta AF 28mm F2 New</translation>
    </message>
    <message>
        <source>Sony:LensType:26721</source>
        <translation>Minolta AF 24-105mm F3.5-4.5 (D)</translation>
    </message>
    <message>
        <source>Sony:LensType:30464</source>
        <translation>Metabones Canon EF Speed Booster</translation>
    </message>
    <message>
        <source>Sony:LensType:45671</source>
        <translation>Tokina 70-210mm F4-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:45681</source>
        <translation>Tokina AF 35-200mm F4-5.6 Zoom SD</translation>
    </message>
    <message>
        <source>Sony:LensType:45701</source>
        <translation>Tamron AF 35-135mm F3.5-4.5</translation>
    </message>
    <message>
        <source>Sony:LensType:45711</source>
        <translation>Vivitar 70-210mm F4.5-5.6</translation>
    </message>
    <message>
        <source>Sony:LensType:45741</source>
        <translation>2x Teleconverter or Tamron or Tokina Lens or Tamron SP AF 90mm F2.5 or Tokina RF 500mm F8.0 x2 or Tokina 300mm F2.8 x2</translation>
    </message>
    <message>
        <source>Sony:LensType:45751</source>
        <translation>1.4x Teleconverter</translation>
    </message>
    <message>
        <source>Sony:LensType:45851</source>
        <translation>Tamron SP AF 300mm F2.8 LD IF</translation>
    </message>
    <message>
        <source>Sony:LensType:45861</source>
        <translation>Tamron SP AF 35-105mm F2.8 LD Aspherical IF</translation>
    </message>
    <message>
        <source>Sony:LensType:45871</source>
        <translation>Tamron AF 70-210mm F2.8 SP LD</translation>
    </message>
    <message>
        <source>Sony:LensType:48128</source>
        <translation>Metabones Canon EF Speed Booster Ultra</translation>
    </message>
    <message>
        <source>Sony:LensType:61184</source>
        <translation>Canon EF Adapter</translation>
    </message>
    <message>
        <source>Sony:LensType:65280</source>
        <translation>Sigma 16mm F2.8 Filtermatic Fisheye</translation>
    </message>
    <message>
        <source>Sony:LensType:65535</source>
        <translation>E-Mount, T-Mount, Other Lens or no lens or Arax MC 35mm F2.8 Tilt+Shift or Arax MC 80mm F2.8 Tilt+Shift or Zenitar MF 16mm F2.8 Fisheye M42 or Samyang 500mm Mirror F8.0 or Pentacon Auto 135mm F2.8 or Pentacon Auto 29mm F2.8 or Helios 44-2 58mm F2.0</translation>
    </message>
    <message>
        <source>Sony:ColorMode</source>
        <translation>Color Mode</translation>
    </message>
    <message>
        <source>Sony:ColorMode:0</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Sony:ColorMode:1</source>
        <translation>Vivid</translation>
    </message>
    <message>
        <source>Sony:ColorMode:2</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Sony:ColorMode:3</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Sony:ColorMode:4</source>
        <translation>Sunset</translation>
    </message>
    <message>
        <source>Sony:ColorMode:5</source>
        <translation>Night View/Portrait</translation>
    </message>
    <message>
        <source>Sony:ColorMode:6</source>
        <translation>B&amp;W</translation>
    </message>
    <message>
        <source>Sony:ColorMode:7</source>
        <translation>Adobe RGB</translation>
    </message>
    <message>
        <source>Sony:ColorMode:12</source>
        <translation>Neutral</translation>
    </message>
    <message>
        <source>Sony:ColorMode:13</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Sony:ColorMode:14</source>
        <translation>Deep</translation>
    </message>
    <message>
        <source>Sony:ColorMode:15</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Sony:ColorMode:16</source>
        <translation>Autumn Leaves</translation>
    </message>
    <message>
        <source>Sony:ColorMode:17</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Sony:ColorMode:18</source>
        <translation>FL</translation>
    </message>
    <message>
        <source>Sony:ColorMode:19</source>
        <translation>Vivid 2</translation>
    </message>
    <message>
        <source>Sony:ColorMode:20</source>
        <translation>IN</translation>
    </message>
    <message>
        <source>Sony:ColorMode:21</source>
        <translation>SH</translation>
    </message>
    <message>
        <source>Sony:ColorMode:22</source>
        <translation>FL2</translation>
    </message>
    <message>
        <source>Sony:ColorMode:23</source>
        <translation>FL3</translation>
    </message>
    <message>
        <source>Sony:ColorMode:100</source>
        <translation>Neutral</translation>
    </message>
    <message>
        <source>Sony:ColorMode:101</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Sony:ColorMode:102</source>
        <translation>Deep</translation>
    </message>
    <message>
        <source>Sony:ColorMode:103</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Sony:ColorMode:104</source>
        <translation>Night View</translation>
    </message>
    <message>
        <source>Sony:ColorMode:105</source>
        <translation>Autumn Leaves</translation>
    </message>
    <message>
        <source>Sony:ColorMode:255</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:ColorMode:4294967295</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:ExposureMode</source>
        <translation>Exposure Mode</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:0</source>
        <translation>Program AE</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:1</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:2</source>
        <translation>Beach</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:3</source>
        <translation>Sports</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:4</source>
        <translation>Snow</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:5</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:6</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:7</source>
        <translation>Aperture-priority AE</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:8</source>
        <translation>Shutter speed priority AE</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:9</source>
        <translation>Night Scene / Twilight</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:10</source>
        <translation>Hi-Speed Shutter</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:11</source>
        <translation>Twilight Portrait</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:12</source>
        <translation>Soft Snap/Portrait</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:13</source>
        <translation>Fireworks</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:14</source>
        <translation>Smile Shutter</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:15</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:18</source>
        <translation>High Sensitivity</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:19</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:20</source>
        <translation>Advanced Sports Shooting</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:29</source>
        <translation>Underwater</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:33</source>
        <translation>Food</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:34</source>
        <translation>Sweep Panorama</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:35</source>
        <translation>Handheld Night Shot</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:36</source>
        <translation>Anti Motion Blur</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:37</source>
        <translation>Pet</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:38</source>
        <translation>Backlight Correction HDR</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:39</source>
        <translation>Superior Auto</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:40</source>
        <translation>Background Defocus</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:41</source>
        <translation>Soft Skin</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:42</source>
        <translation>3D Image</translation>
    </message>
    <message>
        <source>Sony:ExposureMode:65535</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:AFIlluminator</source>
        <translation>AF Illuminator</translation>
    </message>
    <message>
        <source>Sony:AFIlluminator:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:AFIlluminator:1</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Sony:AFIlluminator:65535</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:JPEGQuality</source>
        <translation>JPEG Quality</translation>
    </message>
    <message>
        <source>Sony:JPEGQuality:0</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Sony:JPEGQuality:1</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Sony:JPEGQuality:2</source>
        <translation>Extra Fine</translation>
    </message>
    <message>
        <source>Sony:JPEGQuality:65535</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:FlashLevel</source>
        <translation>Flash Level</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:-32768</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:-9</source>
        <translation>-9/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:-8</source>
        <translation>-8/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:-7</source>
        <translation>-7/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:-6</source>
        <translation>-6/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:-5</source>
        <translation>-5/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:-4</source>
        <translation>-4/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:-3</source>
        <translation>-3/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:-2</source>
        <translation>-2/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:-1</source>
        <translation>-1/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:0</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:1</source>
        <translation>+1/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:2</source>
        <translation>+2/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:3</source>
        <translation>+3/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:4</source>
        <translation>+4/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:5</source>
        <translation>+5/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:6</source>
        <translation>+6/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:9</source>
        <translation>+9/3</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:128</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:FlashLevel:32767</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Sony:ReleaseMode</source>
        <translation>Release Mode</translation>
    </message>
    <message>
        <source>Sony:ReleaseMode:0</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Sony:ReleaseMode:2</source>
        <translation>Continuous</translation>
    </message>
    <message>
        <source>Sony:ReleaseMode:5</source>
        <translation>Exposure Bracketing</translation>
    </message>
    <message>
        <source>Sony:ReleaseMode:6</source>
        <translation>White Balance Bracketing</translation>
    </message>
    <message>
        <source>Sony:ReleaseMode:8</source>
        <translation>DRO Bracketing</translation>
    </message>
    <message>
        <source>Sony:ReleaseMode:65535</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:Anti-Blur</source>
        <translation>Anti-Blur</translation>
    </message>
    <message>
        <source>Sony:Anti-Blur:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:Anti-Blur:1</source>
        <translation>On (Continuous)</translation>
    </message>
    <message>
        <source>Sony:Anti-Blur:2</source>
        <translation>On (Shooting)</translation>
    </message>
    <message>
        <source>Sony:Anti-Blur:65535</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Sony:IntelligentAuto</source>
        <translation>Intelligent Auto</translation>
    </message>
    <message>
        <source>Sony:IntelligentAuto:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Sony:IntelligentAuto:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Sony:IntelligentAuto:2</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>Sony:SerialNumber</source>
        <translation>Serial Number</translation>
    </message>
    <message>
        <source>FujiFilm:InternalSerialNumber</source>
        <translation>Internal Serial Number</translation>
    </message>
    <message>
        <source>FujiFilm:Sharpness</source>
        <translation>Sharpness</translation>
    </message>
    <message>
        <source>FujiFilm:Sharpness:0</source>
        <translation>-4 (softest)</translation>
    </message>
    <message>
        <source>FujiFilm:Sharpness:1</source>
        <translation>-3 (very soft)</translation>
    </message>
    <message>
        <source>FujiFilm:Sharpness:2</source>
        <translation>-2 (soft)</translation>
    </message>
    <message>
        <source>FujiFilm:Sharpness:3</source>
        <translation>0 (normal)</translation>
    </message>
    <message>
        <source>FujiFilm:Sharpness:4</source>
        <translation>+2 (hard)</translation>
    </message>
    <message>
        <source>FujiFilm:Sharpness:5</source>
        <translation>+3 (very hard)</translation>
    </message>
    <message>
        <source>FujiFilm:Sharpness:6</source>
        <translation>+4 (hardest)</translation>
    </message>
    <message>
        <source>FujiFilm:Sharpness:130</source>
        <translation>-1 (medium soft)</translation>
    </message>
    <message>
        <source>FujiFilm:Sharpness:132</source>
        <translation>+1 (medium hard)</translation>
    </message>
    <message>
        <source>FujiFilm:Sharpness:32768</source>
        <translation>Film Simulation</translation>
    </message>
    <message>
        <source>FujiFilm:Sharpness:65535</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance</source>
        <translation>White Balance</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:0</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:1</source>
        <translation>Auto (white priority)</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:2</source>
        <translation>Auto (ambiance priority)</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:256</source>
        <translation>Daylight</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:512</source>
        <translation>Cloudy</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:768</source>
        <translation>Daylight Fluorescent</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:769</source>
        <translation>Day White Fluorescent</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:770</source>
        <translation>White Fluorescent</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:771</source>
        <translation>Warm White Fluorescent</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:772</source>
        <translation>Living Room Warm White Fluorescent</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:1024</source>
        <translation>Incandescent</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:1280</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:1536</source>
        <translation>Underwater</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:3840</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:3841</source>
        <translation>Custom2</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:3842</source>
        <translation>Custom3</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:3843</source>
        <translation>Custom4</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:3844</source>
        <translation>Custom5</translation>
    </message>
    <message>
        <source>FujiFilm:WhiteBalance:4080</source>
        <translation>Kelvin</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:0</source>
        <translation>0 (normal)</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:128</source>
        <translation>+1 (medium high)</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:192</source>
        <translation>+3 (very high)</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:224</source>
        <translation>+4 (highest)</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:256</source>
        <translation>+2 (high)</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:384</source>
        <translation>-1 (medium low)</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:512</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:768</source>
        <translation>None (B&amp;W)</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:769</source>
        <translation>B&amp;W Red Filter</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:770</source>
        <translation>B&amp;W Yellow Filter</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:771</source>
        <translation>B&amp;W Green Filter</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:784</source>
        <translation>B&amp;W Sepia</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:1024</source>
        <translation>-2 (low)</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:1216</source>
        <translation>-3 (very low)</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:1248</source>
        <translation>-4 (lowest)</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:1280</source>
        <translation>Acros</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:1281</source>
        <translation>Acros Red Filter</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:1282</source>
        <translation>Acros Yellow Filter</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:1283</source>
        <translation>Acros Green Filter</translation>
    </message>
    <message>
        <source>FujiFilm:Saturation:32768</source>
        <translation>Film Simulation</translation>
    </message>
    <message>
        <source>FujiFilm:NoiseReduction</source>
        <translation>Noise Reduction</translation>
    </message>
    <message>
        <source>FujiFilm:NoiseReduction:64</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>FujiFilm:NoiseReduction:128</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>FujiFilm:NoiseReduction:256</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>FujiFilm:NoiseReduction:0</source>
        <translation>0 (normal)</translation>
    </message>
    <message>
        <source>FujiFilm:NoiseReduction:384</source>
        <translation>+1 (medium strong)</translation>
    </message>
    <message>
        <source>FujiFilm:NoiseReduction:448</source>
        <translation>+3 (very strong)</translation>
    </message>
    <message>
        <source>FujiFilm:NoiseReduction:480</source>
        <translation>+4 (strongest)</translation>
    </message>
    <message>
        <source>FujiFilm:NoiseReduction:512</source>
        <translation>-2 (weak)</translation>
    </message>
    <message>
        <source>FujiFilm:NoiseReduction:640</source>
        <translation>-1 (medium weak)</translation>
    </message>
    <message>
        <source>FujiFilm:NoiseReduction:704</source>
        <translation>-3 (very weak)</translation>
    </message>
    <message>
        <source>FujiFilm:NoiseReduction:736</source>
        <translation>-4 (weakest)</translation>
    </message>
    <message>
        <source>FujiFilm:Clarity</source>
        <translation>Clarity</translation>
    </message>
    <message>
        <source>FujiFilm:Clarity:-5000</source>
        <translation>-5</translation>
    </message>
    <message>
        <source>FujiFilm:Clarity:-4000</source>
        <translation>-4</translation>
    </message>
    <message>
        <source>FujiFilm:Clarity:-3000</source>
        <translation>-3</translation>
    </message>
    <message>
        <source>FujiFilm:Clarity:-2000</source>
        <translation>-2</translation>
    </message>
    <message>
        <source>FujiFilm:Clarity:-1000</source>
        <translation>-1</translation>
    </message>
    <message>
        <source>FujiFilm:Clarity:0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>FujiFilm:Clarity:1000</source>
        <translation>1</translation>
    </message>
    <message>
        <source>FujiFilm:Clarity:2000</source>
        <translation>2</translation>
    </message>
    <message>
        <source>FujiFilm:Clarity:3000</source>
        <translation>3</translation>
    </message>
    <message>
        <source>FujiFilm:Clarity:4000</source>
        <translation>4</translation>
    </message>
    <message>
        <source>FujiFilm:Clarity:5000</source>
        <translation>5</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode</source>
        <translation>Fuji Flash Mode</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:0</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:2</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:3</source>
        <translation>Red-eye reduction</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:4</source>
        <translation>External</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:16</source>
        <translation>Commander</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:32768</source>
        <translation>Not Attached</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:33056</source>
        <translation>TTL</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:33568</source>
        <translation>TTL Auto - Did not fire</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:38976</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:39008</source>
        <translation>Flash Commander</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:39040</source>
        <translation>Multi-flash</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:43296</source>
        <translation>1st Curtain (front)</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:43552</source>
        <translation>TTL Slow - 1st Curtain (front)</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:43808</source>
        <translation>TTL Auto - 1st Curtain (front)</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:44320</source>
        <translation>TTL - Red-eye Flash - 1st Curtain (front)</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:44576</source>
        <translation>TTL Slow - Red-eye Flash - 1st Curtain (front)</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:44832</source>
        <translation>TTL Auto - Red-eye Flash - 1st Curtain (front)</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:51488</source>
        <translation>2nd Curtain (rear)</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:51744</source>
        <translation>TTL Slow - 2nd Curtain (rear)</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:52000</source>
        <translation>TTL Auto - 2nd Curtain (rear)</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:52512</source>
        <translation>TTL - Red-eye Flash - 2nd Curtain (rear)</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:52768</source>
        <translation>TTL Slow - Red-eye Flash - 2nd Curtain (rear)</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:53024</source>
        <translation>TTL Auto - Red-eye Flash - 2nd Curtain (rear)</translation>
    </message>
    <message>
        <source>FujiFilm:FujiFlashMode:59680</source>
        <translation>High Speed Sync (HSS)</translation>
    </message>
    <message>
        <source>FujiFilm:Macro</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>FujiFilm:Macro:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>FujiFilm:Macro:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>FujiFilm:FocusMode</source>
        <translation>Focus Mode</translation>
    </message>
    <message>
        <source>FujiFilm:FocusMode:0</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>FujiFilm:FocusMode:1</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>FujiFilm:FocusMode:65535</source>
        <translation>Movie</translation>
    </message>
    <message>
        <source>FujiFilm:AFMode</source>
        <translation>AF Mode</translation>
    </message>
    <message>
        <source>FujiFilm:AFMode:0</source>
        <translation>No</translation>
    </message>
    <message>
        <source>FujiFilm:AFMode:1</source>
        <translation>Single Point</translation>
    </message>
    <message>
        <source>FujiFilm:AFMode:256</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>FujiFilm:AFMode:512</source>
        <translation>Wide/Tracking</translation>
    </message>
    <message>
        <source>FujiFilm:SlowSync</source>
        <translation>Slow Sync</translation>
    </message>
    <message>
        <source>FujiFilm:SlowSync:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>FujiFilm:SlowSync:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode</source>
        <translation>Picture Mode</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:0</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:1</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:2</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:3</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:4</source>
        <translation>Sports</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:5</source>
        <translation>Night Scene</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:6</source>
        <translation>Program AE</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:7</source>
        <translation>Natural Light</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:8</source>
        <translation>Anti-blur</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:9</source>
        <translation>Beach &amp; Snow</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:10</source>
        <translation>Sunset</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:11</source>
        <translation>Museum</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:12</source>
        <translation>Party</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:13</source>
        <translation>Flower</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:14</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:15</source>
        <translation>Natural Light &amp; Flash</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:16</source>
        <translation>Beach</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:17</source>
        <translation>Snow</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:18</source>
        <translation>Fireworks</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:19</source>
        <translation>Underwater</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:20</source>
        <translation>Portrait with Skin Correction</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:22</source>
        <translation>Panorama</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:23</source>
        <translation>Night (tripod)</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:24</source>
        <translation>Pro Low-light</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:25</source>
        <translation>Pro Focus</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:26</source>
        <translation>Portrait 2</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:27</source>
        <translation>Dog Face Detection</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:28</source>
        <translation>Cat Face Detection</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:48</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:64</source>
        <translation>Advanced Filter</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:256</source>
        <translation>Aperture-priority AE</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:512</source>
        <translation>Shutter speed priority AE</translation>
    </message>
    <message>
        <source>FujiFilm:PictureMode:768</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>FujiFilm:EXRAuto</source>
        <translation>EXR Auto</translation>
    </message>
    <message>
        <source>FujiFilm:EXRAuto:0</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>FujiFilm:EXRAuto:1</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>FujiFilm:EXRMode</source>
        <translation>EXR Mode</translation>
    </message>
    <message>
        <source>FujiFilm:EXRMode:256</source>
        <translation>HR (High Resolution)</translation>
    </message>
    <message>
        <source>FujiFilm:EXRMode:512</source>
        <translation>SN (Signal to Noise priority)</translation>
    </message>
    <message>
        <source>FujiFilm:EXRMode:768</source>
        <translation>DR (Dynamic Range priority)</translation>
    </message>
    <message>
        <source>FujiFilm:ShadowTone</source>
        <translation>Shadow Tone</translation>
    </message>
    <message>
        <source>FujiFilm:ShadowTone:-64</source>
        <translation>+4 (hardest)</translation>
    </message>
    <message>
        <source>FujiFilm:ShadowTone:-48</source>
        <translation>+3 (very hard)</translation>
    </message>
    <message>
        <source>FujiFilm:ShadowTone:-32</source>
        <translation>+2 (hard)</translation>
    </message>
    <message>
        <source>FujiFilm:ShadowTone:-16</source>
        <translation>+1 (medium hard)</translation>
    </message>
    <message>
        <source>FujiFilm:ShadowTone:0</source>
        <translation>0 (normal)</translation>
    </message>
    <message>
        <source>FujiFilm:ShadowTone:16</source>
        <translation>-1 (medium soft)</translation>
    </message>
    <message>
        <source>FujiFilm:ShadowTone:32</source>
        <translation>-2 (soft)</translation>
    </message>
    <message>
        <source>FujiFilm:HighlightTone</source>
        <translation>Highlight Tone</translation>
    </message>
    <message>
        <source>FujiFilm:HighlightTone:-64</source>
        <translation>+4 (hardest)</translation>
    </message>
    <message>
        <source>FujiFilm:HighlightTone:-48</source>
        <translation>+3 (very hard)</translation>
    </message>
    <message>
        <source>FujiFilm:HighlightTone:-32</source>
        <translation>+2 (hard)</translation>
    </message>
    <message>
        <source>FujiFilm:HighlightTone:-16</source>
        <translation>+1 (medium hard)</translation>
    </message>
    <message>
        <source>FujiFilm:HighlightTone:0</source>
        <translation>0 (normal)</translation>
    </message>
    <message>
        <source>FujiFilm:HighlightTone:16</source>
        <translation>-1 (medium soft)</translation>
    </message>
    <message>
        <source>FujiFilm:HighlightTone:32</source>
        <translation>-2 (soft)</translation>
    </message>
    <message>
        <source>FujiFilm:LensModulationOptimizer</source>
        <translation>Lens Modulation Optimizer</translation>
    </message>
    <message>
        <source>FujiFilm:LensModulationOptimizer:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>FujiFilm:LensModulationOptimizer:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>FujiFilm:GrainEffectRoughness</source>
        <translation>Grain Effect Roughness</translation>
    </message>
    <message>
        <source>FujiFilm:GrainEffectRoughness:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>FujiFilm:GrainEffectRoughness:32</source>
        <translation>Weak</translation>
    </message>
    <message>
        <source>FujiFilm:GrainEffectRoughness:64</source>
        <translation>Strong</translation>
    </message>
    <message>
        <source>FujiFilm:ColorChromeEffect</source>
        <translation>Color Chrome Effect</translation>
    </message>
    <message>
        <source>FujiFilm:ColorChromeEffect:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>FujiFilm:ColorChromeEffect:32</source>
        <translation>Weak</translation>
    </message>
    <message>
        <source>FujiFilm:ColorChromeEffect:64</source>
        <translation>Strong</translation>
    </message>
    <message>
        <source>FujiFilm:GrainEffectSize</source>
        <translation>Grain Effect Size</translation>
    </message>
    <message>
        <source>FujiFilm:GrainEffectSize:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>FujiFilm:GrainEffectSize:16</source>
        <translation>Small</translation>
    </message>
    <message>
        <source>FujiFilm:GrainEffectSize:32</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>FujiFilm:CropMode</source>
        <translation>Crop Mode</translation>
    </message>
    <message>
        <source>FujiFilm:CropMode:0</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>FujiFilm:CropMode:1</source>
        <translation>Full-frame on GFX</translation>
    </message>
    <message>
        <source>FujiFilm:CropMode:2</source>
        <translation>Sports Finder Mode</translation>
    </message>
    <message>
        <source>FujiFilm:CropMode:4</source>
        <translation>Electronic Shutter 1.25x Crop</translation>
    </message>
    <message>
        <source>FujiFilm:CropMode:8</source>
        <translation>Digital Tele-Conv</translation>
    </message>
    <message>
        <source>FujiFilm:ColorChromeFXBlue</source>
        <translation>Color Chrome FX Blue</translation>
    </message>
    <message>
        <source>FujiFilm:ColorChromeFXBlue:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>FujiFilm:ColorChromeFXBlue:32</source>
        <translation>Weak</translation>
    </message>
    <message>
        <source>FujiFilm:ColorChromeFXBlue:64</source>
        <translation>Strong</translation>
    </message>
    <message>
        <source>FujiFilm:ShutterType</source>
        <translation>Shutter Type</translation>
    </message>
    <message>
        <source>FujiFilm:ShutterType:0</source>
        <translation>Mechanical</translation>
    </message>
    <message>
        <source>FujiFilm:ShutterType:1</source>
        <translation>Electronic</translation>
    </message>
    <message>
        <source>FujiFilm:ShutterType:2</source>
        <translation>Electronic (long shutter speed)</translation>
    </message>
    <message>
        <source>FujiFilm:ShutterType:3</source>
        <translation>Electronic Front Curtain</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter</source>
        <translation>Advanced Filter</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:65536</source>
        <translation>Pop Color</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:131072</source>
        <translation>Hi Key</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:196608</source>
        <translation>Toy Camera</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:262144</source>
        <translation>Miniature</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:327680</source>
        <translation>Dynamic Tone</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:393217</source>
        <translation>Partial Color Red</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:393218</source>
        <translation>Partial Color Yellow</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:393219</source>
        <translation>Partial Color Green</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:393220</source>
        <translation>Partial Color Blue</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:393221</source>
        <translation>Partial Color Orange</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:393222</source>
        <translation>Partial Color Purple</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:458752</source>
        <translation>Soft Focus</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:589824</source>
        <translation>Low Key</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:1048576</source>
        <translation>Light Leak</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:1245184</source>
        <translation>Expired Film Green</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:1245185</source>
        <translation>Expired Film Red</translation>
    </message>
    <message>
        <source>FujiFilm:AdvancedFilter:1245186</source>
        <translation>Expired Film Neutral</translation>
    </message>
    <message>
        <source>FujiFilm:BlurWarning</source>
        <translation>Blur Warning</translation>
    </message>
    <message>
        <source>FujiFilm:BlurWarning:0</source>
        <translation>None</translation>
    </message>
    <message>
        <source>FujiFilm:BlurWarning:1</source>
        <translation>Blur Warning</translation>
    </message>
    <message>
        <source>FujiFilm:FocusWarning</source>
        <translation>Focus Warning</translation>
    </message>
    <message>
        <source>FujiFilm:FocusWarning:0</source>
        <translation>Good</translation>
    </message>
    <message>
        <source>FujiFilm:FocusWarning:1</source>
        <translation>Out of focus</translation>
    </message>
    <message>
        <source>FujiFilm:ExposureWarning</source>
        <translation>Exposure Warning</translation>
    </message>
    <message>
        <source>FujiFilm:ExposureWarning:0</source>
        <translation>Good</translation>
    </message>
    <message>
        <source>FujiFilm:ExposureWarning:1</source>
        <translation>Bad exposure</translation>
    </message>
    <message>
        <source>FujiFilm:DynamicRange</source>
        <translation>Dynamic Range</translation>
    </message>
    <message>
        <source>FujiFilm:DynamicRange:1</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>FujiFilm:DynamicRange:3</source>
        <translation>Wide</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode</source>
        <translation>Film Mode</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:0</source>
        <translation>F0/Standard (Provia)</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:256</source>
        <translation>F1/Studio Portrait</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:272</source>
        <translation>F1a/Studio Portrait Enhanced Saturation</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:288</source>
        <translation>F1b/Studio Portrait Smooth Skin Tone (Astia)</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:304</source>
        <translation>F1c/Studio Portrait Increased Sharpness</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:512</source>
        <translation>F2/Fujichrome (Velvia)</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:768</source>
        <translation>F3/Studio Portrait Ex</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:1024</source>
        <translation>F4/Velvia</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:1280</source>
        <translation>Pro Neg. Std</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:1281</source>
        <translation>Pro Neg. Hi</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:1536</source>
        <translation>Classic Chrome</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:1792</source>
        <translation>Eterna</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:2048</source>
        <translation>Classic Negative</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:2304</source>
        <translation>Bleach Bypass</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:2560</source>
        <translation>Nostalgic Neg</translation>
    </message>
    <message>
        <source>FujiFilm:FilmMode:2816</source>
        <translation>Reala ACE</translation>
    </message>
    <message>
        <source>FujiFilm:DynamicRangeSetting</source>
        <translation>Dynamic Range Setting</translation>
    </message>
    <message>
        <source>FujiFilm:DynamicRangeSetting:0</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>FujiFilm:DynamicRangeSetting:1</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>FujiFilm:DynamicRangeSetting:256</source>
        <translation>Standard (100%)</translation>
    </message>
    <message>
        <source>FujiFilm:DynamicRangeSetting:512</source>
        <translation>Wide1 (230%)</translation>
    </message>
    <message>
        <source>FujiFilm:DynamicRangeSetting:513</source>
        <translation>Wide2 (400%)</translation>
    </message>
    <message>
        <source>FujiFilm:DynamicRangeSetting:32768</source>
        <translation>Film Simulation</translation>
    </message>
    <message>
        <source>FujiFilm:SceneRecognition</source>
        <translation>Scene Recognition</translation>
    </message>
    <message>
        <source>FujiFilm:SceneRecognition:0</source>
        <translation>Unrecognized</translation>
    </message>
    <message>
        <source>FujiFilm:SceneRecognition:256</source>
        <translation>Portrait Image</translation>
    </message>
    <message>
        <source>FujiFilm:SceneRecognition:259</source>
        <translation>Night Portrait</translation>
    </message>
    <message>
        <source>FujiFilm:SceneRecognition:261</source>
        <translation>Backlit Portrait</translation>
    </message>
    <message>
        <source>FujiFilm:SceneRecognition:512</source>
        <translation>Landscape Image</translation>
    </message>
    <message>
        <source>FujiFilm:SceneRecognition:768</source>
        <translation>Night Scene</translation>
    </message>
    <message>
        <source>FujiFilm:SceneRecognition:1024</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>FujiFilm:Rating</source>
        <translation>Rating</translation>
    </message>
    <message>
        <source>Olympus:CameraType</source>
        <translation>Camera Type</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4028</source>
        <translation>X-2,C-50Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4029</source>
        <translation>E-20,E-20N,E-20P</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4034</source>
        <translation>C720UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4040</source>
        <translation>E-1</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4041</source>
        <translation>E-300</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4083</source>
        <translation>C2Z,D520Z,C220Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4106</source>
        <translation>u20D,S400D,u400D</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4120</source>
        <translation>X-1</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4122</source>
        <translation>u10D,S300D,u300D</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4125</source>
        <translation>AZ-1</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4141</source>
        <translation>C150,D390</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4193</source>
        <translation>C-5000Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4194</source>
        <translation>X-3,C-60Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4199</source>
        <translation>u30D,S410D,u410D</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4205</source>
        <translation>X450,D535Z,C370Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4210</source>
        <translation>C160,D395</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4211</source>
        <translation>C725UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4213</source>
        <translation>FerrariMODEL2003</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4216</source>
        <translation>u15D</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4217</source>
        <translation>u25D</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4220</source>
        <translation>u-miniD,Stylus V</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4221</source>
        <translation>u40D,S500,uD500</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4231</source>
        <translation>FerrariMODEL2004</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4240</source>
        <translation>X500,D590Z,C470Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4244</source>
        <translation>uD800,S800</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4256</source>
        <translation>u720SW,S720SW</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4261</source>
        <translation>X600,D630,FE5500</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4262</source>
        <translation>uD600,S600</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4301</source>
        <translation>u810/S810</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4302</source>
        <translation>u710,S710</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4303</source>
        <translation>u700,S700</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4304</source>
        <translation>FE100,X710</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4305</source>
        <translation>FE110,X705</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4310</source>
        <translation>FE-130,X-720</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4311</source>
        <translation>FE-140,X-725</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4312</source>
        <translation>FE150,X730</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4313</source>
        <translation>FE160,X735</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4314</source>
        <translation>u740,S740</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4315</source>
        <translation>u750,S750</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4316</source>
        <translation>u730/S730</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4317</source>
        <translation>FE115,X715</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4321</source>
        <translation>SP550UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4322</source>
        <translation>SP510UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4324</source>
        <translation>FE170,X760</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4326</source>
        <translation>FE200</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4327</source>
        <translation>FE190/X750</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4328</source>
        <translation>u760,S760</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4330</source>
        <translation>FE180/X745</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4331</source>
        <translation>u1000/S1000</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4332</source>
        <translation>u770SW,S770SW</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4333</source>
        <translation>FE240/X795</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4334</source>
        <translation>FE210,X775</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4336</source>
        <translation>FE230/X790</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4337</source>
        <translation>FE220,X785</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4338</source>
        <translation>u725SW,S725SW</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4339</source>
        <translation>FE250/X800</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4341</source>
        <translation>u780,S780</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4343</source>
        <translation>u790SW,S790SW</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4344</source>
        <translation>u1020,S1020</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4346</source>
        <translation>FE15,X10</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4348</source>
        <translation>FE280,X820,C520</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4349</source>
        <translation>FE300,X830</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4350</source>
        <translation>u820,S820</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4351</source>
        <translation>u1200,S1200</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4352</source>
        <translation>FE270,X815,C510</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4353</source>
        <translation>u795SW,S795SW</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4354</source>
        <translation>u1030SW,S1030SW</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4355</source>
        <translation>SP560UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4356</source>
        <translation>u1010,S1010</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4357</source>
        <translation>u830,S830</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4359</source>
        <translation>u840,S840</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4360</source>
        <translation>FE350WIDE,X865</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4361</source>
        <translation>u850SW,S850SW</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4362</source>
        <translation>FE340,X855,C560</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4363</source>
        <translation>FE320,X835,C540</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4364</source>
        <translation>SP570UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4366</source>
        <translation>FE330,X845,C550</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4368</source>
        <translation>FE310,X840,C530</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4370</source>
        <translation>u1050SW,S1050SW</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4371</source>
        <translation>u1060,S1060</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4372</source>
        <translation>FE370,X880,C575</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4374</source>
        <translation>SP565UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4377</source>
        <translation>u1040,S1040</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4378</source>
        <translation>FE360,X875,C570</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4379</source>
        <translation>FE20,X15,C25</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4380</source>
        <translation>uT6000,ST6000</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4381</source>
        <translation>uT8000,ST8000</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4382</source>
        <translation>u9000,S9000</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4384</source>
        <translation>SP590UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4385</source>
        <translation>FE3010,X895</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4386</source>
        <translation>FE3000,X890</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4387</source>
        <translation>FE35,X30</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4388</source>
        <translation>u550WP,S550WP</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4390</source>
        <translation>FE5000,X905</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4391</source>
        <translation>u5000</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4392</source>
        <translation>u7000,S7000</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4396</source>
        <translation>FE5010,X915</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4397</source>
        <translation>FE25,X20</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4398</source>
        <translation>FE45,X40</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4401</source>
        <translation>XZ-1</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4402</source>
        <translation>uT6010,ST6010</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4406</source>
        <translation>u7010,S7010 / u7020,S7020</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4407</source>
        <translation>FE4010,X930</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4408</source>
        <translation>X560WP</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4409</source>
        <translation>FE26,X21</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4410</source>
        <translation>FE4000,X920,X925</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4411</source>
        <translation>FE46,X41,X42</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4412</source>
        <translation>FE5020,X935</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4413</source>
        <translation>uTough-3000</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4414</source>
        <translation>StylusTough-6020</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4415</source>
        <translation>StylusTough-8010</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4417</source>
        <translation>u5010,S5010</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4418</source>
        <translation>u7040,S7040</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4419</source>
        <translation>u9010,S9010</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4423</source>
        <translation>FE4040</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4424</source>
        <translation>FE47,X43</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4426</source>
        <translation>FE4030,X950</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4428</source>
        <translation>FE5030,X965,X960</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4430</source>
        <translation>u7030,S7030</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4432</source>
        <translation>SP600UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4434</source>
        <translation>SP800UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4439</source>
        <translation>FE4020,X940</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4442</source>
        <translation>FE5035</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4448</source>
        <translation>FE4050,X970</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4450</source>
        <translation>FE5050,X985</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4454</source>
        <translation>u-7050</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4464</source>
        <translation>T10,X27</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4470</source>
        <translation>FE5040,X980</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4472</source>
        <translation>TG-310</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4474</source>
        <translation>TG-610</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4476</source>
        <translation>TG-810</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4478</source>
        <translation>VG145,VG140,D715</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4479</source>
        <translation>VG130,D710</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4480</source>
        <translation>VG120,D705</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4482</source>
        <translation>VR310,D720</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4484</source>
        <translation>VR320,D725</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4486</source>
        <translation>VR330,D730</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4488</source>
        <translation>VG110,D700</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4490</source>
        <translation>SP-610UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4492</source>
        <translation>SZ-10</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4494</source>
        <translation>SZ-20</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4496</source>
        <translation>SZ-30MR</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4498</source>
        <translation>SP-810UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4500</source>
        <translation>SZ-11</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4504</source>
        <translation>TG-615</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4508</source>
        <translation>TG-620</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4510</source>
        <translation>TG-820</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4512</source>
        <translation>TG-1</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4516</source>
        <translation>SH-21</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4519</source>
        <translation>SZ-14</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4520</source>
        <translation>SZ-31MR</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4521</source>
        <translation>SH-25MR</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4523</source>
        <translation>SP-720UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4529</source>
        <translation>VG170</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4530</source>
        <translation>VH210</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4531</source>
        <translation>XZ-2</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4535</source>
        <translation>SP-620UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4536</source>
        <translation>TG-320</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4537</source>
        <translation>VR340,D750</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4538</source>
        <translation>VG160,X990,D745</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4541</source>
        <translation>SZ-12</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4545</source>
        <translation>VH410</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4546</source>
        <translation>XZ-10</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4547</source>
        <translation>TG-2</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4548</source>
        <translation>TG-830</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4549</source>
        <translation>TG-630</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4550</source>
        <translation>SH-50</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4553</source>
        <translation>SZ-16,DZ-105</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4562</source>
        <translation>SP-820UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4566</source>
        <translation>SZ-15</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4572</source>
        <translation>STYLUS1</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4574</source>
        <translation>TG-3</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4575</source>
        <translation>TG-850</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4579</source>
        <translation>SP-100EE</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4580</source>
        <translation>SH-60</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4581</source>
        <translation>SH-1</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4582</source>
        <translation>TG-835</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4585</source>
        <translation>SH-2 / SH-3</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4586</source>
        <translation>TG-4</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4587</source>
        <translation>TG-860</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4590</source>
        <translation>TG-TRACKER</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4591</source>
        <translation>TG-870</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4593</source>
        <translation>TG-5</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4603</source>
        <translation>TG-6</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4605</source>
        <translation>TG-7</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4809</source>
        <translation>C2500L</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4842</source>
        <translation>E-10</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4856</source>
        <translation>C-1</translation>
    </message>
    <message>
        <source>Olympus:CameraType:D4857</source>
        <translation>C-1Z,D-150Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:DCHC</source>
        <translation>D500L</translation>
    </message>
    <message>
        <source>Olympus:CameraType:DCHT</source>
        <translation>D600L / D620L</translation>
    </message>
    <message>
        <source>Olympus:CameraType:K0055</source>
        <translation>AIR-A01</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0003</source>
        <translation>E-330</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0004</source>
        <translation>E-500</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0009</source>
        <translation>E-400</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0010</source>
        <translation>E-510</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0011</source>
        <translation>E-3</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0013</source>
        <translation>E-410</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0016</source>
        <translation>E-420</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0017</source>
        <translation>E-30</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0018</source>
        <translation>E-520</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0019</source>
        <translation>E-P1</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0023</source>
        <translation>E-620</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0026</source>
        <translation>E-P2</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0027</source>
        <translation>E-PL1</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0029</source>
        <translation>E-450</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0030</source>
        <translation>E-600</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0032</source>
        <translation>E-P3</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0033</source>
        <translation>E-5</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0034</source>
        <translation>E-PL2</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0036</source>
        <translation>E-M5</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0038</source>
        <translation>E-PL3</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0039</source>
        <translation>E-PM1</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0040</source>
        <translation>E-PL1s</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0042</source>
        <translation>E-PL5</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0043</source>
        <translation>E-PM2</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0044</source>
        <translation>E-P5</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0045</source>
        <translation>E-PL6</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0046</source>
        <translation>E-PL7</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0047</source>
        <translation>E-M1</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0051</source>
        <translation>E-M10</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0052</source>
        <translation>E-M5MarkII</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0059</source>
        <translation>E-M10MarkII</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0061</source>
        <translation>PEN-F</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0065</source>
        <translation>E-PL8</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0067</source>
        <translation>E-M1MarkII</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0068</source>
        <translation>E-M10MarkIII</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0076</source>
        <translation>E-PL9</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0080</source>
        <translation>E-M1X</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0085</source>
        <translation>E-PL10</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0088</source>
        <translation>E-M10MarkIV</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0089</source>
        <translation>E-M5MarkIII</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0092</source>
        <translation>E-M1MarkIII</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0093</source>
        <translation>E-P7</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0094</source>
        <translation>E-M10MarkIIIS</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0095</source>
        <translation>OM-1</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0101</source>
        <translation>OM-5</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0121</source>
        <translation>OM-1MarkII</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0123</source>
        <translation>OM-3</translation>
    </message>
    <message>
        <source>Olympus:CameraType:S0130</source>
        <translation>OM-5MarkII</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR45</source>
        <translation>D220</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR55</source>
        <translation>D320L</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR83</source>
        <translation>D340L</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR85</source>
        <translation>C830L,D340R</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR852</source>
        <translation>C860L,D360L</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR872</source>
        <translation>C900Z,D400Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR874</source>
        <translation>C960Z,D460Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR951</source>
        <translation>C2000Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR952</source>
        <translation>C21</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR953</source>
        <translation>C21T.commu</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR954</source>
        <translation>C2020Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR955</source>
        <translation>C990Z,D490Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR956</source>
        <translation>C211Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR959</source>
        <translation>C990ZS,D490Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR95A</source>
        <translation>C2100UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR971</source>
        <translation>C100,D370</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SR973</source>
        <translation>C2,D230</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX151</source>
        <translation>E100RS</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX351</source>
        <translation>C3000Z / C3030Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX354</source>
        <translation>C3040Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX355</source>
        <translation>C2040Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX357</source>
        <translation>C700UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX358</source>
        <translation>C200Z,D510Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX374</source>
        <translation>C3100Z,C3020Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX552</source>
        <translation>C4040Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX553</source>
        <translation>C40Z,D40Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX556</source>
        <translation>C730UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX558</source>
        <translation>C5050Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX571</source>
        <translation>C120,D380</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX574</source>
        <translation>C300Z,D550Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX575</source>
        <translation>C4100Z,C4000Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX751</source>
        <translation>X200,D560Z,C350Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX752</source>
        <translation>X300,D565Z,C450Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX753</source>
        <translation>C750UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX754</source>
        <translation>C740UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX755</source>
        <translation>C755UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX756</source>
        <translation>C5060WZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX757</source>
        <translation>C8080WZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX758</source>
        <translation>X350,D575Z,C360Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX759</source>
        <translation>X400,D580Z,C460Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX75A</source>
        <translation>AZ-2ZOOM</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX75B</source>
        <translation>D595Z,C500Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX75C</source>
        <translation>X550,D545Z,C480Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX75D</source>
        <translation>IR-300</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX75F</source>
        <translation>C55Z,C5500Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX75G</source>
        <translation>C170,D425</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX75J</source>
        <translation>C180,D435</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX771</source>
        <translation>C760UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX772</source>
        <translation>C770UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX773</source>
        <translation>C745UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX774</source>
        <translation>X250,D560Z,C350Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX775</source>
        <translation>X100,D540Z,C310Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX776</source>
        <translation>C460ZdelSol</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX777</source>
        <translation>C765UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX77A</source>
        <translation>D555Z,C315Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX851</source>
        <translation>C7070WZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX852</source>
        <translation>C70Z,C7000Z</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX853</source>
        <translation>SP500UZ</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX854</source>
        <translation>SP310</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX855</source>
        <translation>SP350</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX873</source>
        <translation>SP320</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX875</source>
        <translation>FE180/X745</translation>
    </message>
    <message>
        <source>Olympus:CameraType:SX876</source>
        <translation>FE190/X750</translation>
    </message>
    <message>
        <source>Olympus:SerialNumber</source>
        <translation>Serial Number</translation>
    </message>
    <message>
        <source>Olympus:BWMode</source>
        <translation>Black And White Mode</translation>
    </message>
    <message>
        <source>Olympus:BWMode:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Olympus:BWMode:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Olympus:BWMode:6</source>
        <translation>(none)</translation>
    </message>
    <message>
        <source>Olympus:OneTouchWB</source>
        <translation>One Touch WB</translation>
    </message>
    <message>
        <source>Olympus:OneTouchWB:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Olympus:OneTouchWB:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Olympus:OneTouchWB:2</source>
        <translation>On (Preset)</translation>
    </message>
    <message>
        <source>Olympus:SceneMode</source>
        <translation>Scene Mode</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:0</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:1</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:2</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:3</source>
        <translation>Intelligent Auto</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:4</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:5</source>
        <translation>Landscape+Portrait</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:6</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:7</source>
        <translation>Night Scene</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:8</source>
        <translation>Night+Portrait</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:9</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:10</source>
        <translation>Self Portrait</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:11</source>
        <translation>Indoor</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:12</source>
        <translation>Beach &amp; Snow</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:13</source>
        <translation>Beach</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:14</source>
        <translation>Snow</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:15</source>
        <translation>Self Portrait+Self Timer</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:16</source>
        <translation>Sunset</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:17</source>
        <translation>Cuisine</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:18</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:19</source>
        <translation>Candle</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:20</source>
        <translation>Fireworks</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:21</source>
        <translation>Available Light</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:22</source>
        <translation>Vivid</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:23</source>
        <translation>Underwater Wide1</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:24</source>
        <translation>Underwater Macro</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:25</source>
        <translation>Museum</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:26</source>
        <translation>Behind Glass</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:27</source>
        <translation>Auction</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:28</source>
        <translation>Shoot &amp; Select1</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:29</source>
        <translation>Shoot &amp; Select2</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:30</source>
        <translation>Underwater Wide2</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:31</source>
        <translation>Digital Image Stabilization</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:32</source>
        <translation>Face Portrait</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:33</source>
        <translation>Pet</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:34</source>
        <translation>Smile Shot</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:35</source>
        <translation>Quick Shutter</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:43</source>
        <translation>Hand-held Starlight</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:100</source>
        <translation>Panorama</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:101</source>
        <translation>Magic Filter</translation>
    </message>
    <message>
        <source>Olympus:SceneMode:103</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Olympus:FlashDevice</source>
        <translation>Flash Device</translation>
    </message>
    <message>
        <source>Olympus:FlashDevice:0</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Olympus:FlashDevice:1</source>
        <translation>Internal</translation>
    </message>
    <message>
        <source>Olympus:FlashDevice:4</source>
        <translation>External</translation>
    </message>
    <message>
        <source>Olympus:FlashDevice:5</source>
        <translation>Internal + External</translation>
    </message>
    <message>
        <source>Olympus:FocusRange</source>
        <translation>Focus Range</translation>
    </message>
    <message>
        <source>Olympus:FocusRange:0</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Olympus:FocusRange:1</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Olympus:ExternalFlashBounce</source>
        <translation>External Flash Bounce</translation>
    </message>
    <message>
        <source>Olympus:ExternalFlashBounce:0</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Olympus:ExternalFlashBounce:1</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Olympus:CCDScanMode</source>
        <translation>CCD Scan Mode</translation>
    </message>
    <message>
        <source>Olympus:CCDScanMode:0</source>
        <translation>Interlaced</translation>
    </message>
    <message>
        <source>Olympus:CCDScanMode:1</source>
        <translation>Progressive</translation>
    </message>
    <message>
        <source>Olympus:ExposureMode</source>
        <translation>Exposure Mode</translation>
    </message>
    <message>
        <source>Olympus:ExposureMode:1</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Olympus:ExposureMode:2</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Olympus:ExposureMode:3</source>
        <translation>Aperture-priority AE</translation>
    </message>
    <message>
        <source>Olympus:ExposureMode:4</source>
        <translation>Shutter speed priority AE</translation>
    </message>
    <message>
        <source>Olympus:ExposureMode:5</source>
        <translation>Program-shift</translation>
    </message>
    <message>
        <source>Olympus:AELock</source>
        <translation>AE Lock</translation>
    </message>
    <message>
        <source>Olympus:AELock:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Olympus:AELock:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Olympus:MeteringMode</source>
        <translation>Metering Mode</translation>
    </message>
    <message>
        <source>Olympus:MeteringMode:2</source>
        <translation>Center-weighted average</translation>
    </message>
    <message>
        <source>Olympus:MeteringMode:3</source>
        <translation>Spot</translation>
    </message>
    <message>
        <source>Olympus:MeteringMode:5</source>
        <translation>ESP</translation>
    </message>
    <message>
        <source>Olympus:MeteringMode:261</source>
        <translation>Pattern+AF</translation>
    </message>
    <message>
        <source>Olympus:MeteringMode:515</source>
        <translation>Spot+Highlight control</translation>
    </message>
    <message>
        <source>Olympus:MeteringMode:1027</source>
        <translation>Spot+Shadow control</translation>
    </message>
    <message>
        <source>Olympus:MacroMode</source>
        <translation>Macro Mode</translation>
    </message>
    <message>
        <source>Olympus:MacroMode:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Olympus:MacroMode:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Olympus:MacroMode:2</source>
        <translation>Super Macro</translation>
    </message>
    <message>
        <source>Olympus:FocusProcess</source>
        <translation>Focus Process</translation>
    </message>
    <message>
        <source>Olympus:AFSearch</source>
        <translation>AF Search</translation>
    </message>
    <message>
        <source>Olympus:AFSearch:0</source>
        <translation>Not Ready</translation>
    </message>
    <message>
        <source>Olympus:AFSearch:1</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl</source>
        <translation>Flash Remote Control</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl:1</source>
        <translation>Channel 1, Low</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl:2</source>
        <translation>Channel 2, Low</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl:3</source>
        <translation>Channel 3, Low</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl:4</source>
        <translation>Channel 4, Low</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl:9</source>
        <translation>Channel 1, Mid</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl:10</source>
        <translation>Channel 2, Mid</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl:11</source>
        <translation>Channel 3, Mid</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl:12</source>
        <translation>Channel 4, Mid</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl:17</source>
        <translation>Channel 1, High</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl:18</source>
        <translation>Channel 2, High</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl:19</source>
        <translation>Channel 3, High</translation>
    </message>
    <message>
        <source>Olympus:FlashRemoteControl:20</source>
        <translation>Channel 4, High</translation>
    </message>
    <message>
        <source>Olympus:FlashControlMode</source>
        <translation>Flash Control Mode</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2</source>
        <translation>White Balance 2</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:0</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:1</source>
        <translation>Auto (Keep Warm Color Off)</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:16</source>
        <translation>7500K (Fine Weather with Shade)</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:17</source>
        <translation>6000K (Cloudy)</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:18</source>
        <translation>5300K (Fine Weather)</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:20</source>
        <translation>3000K (Tungsten light)</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:21</source>
        <translation>3600K (Tungsten light-like)</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:22</source>
        <translation>Auto Setup</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:23</source>
        <translation>5500K (Flash)</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:33</source>
        <translation>6600K (Daylight fluorescent)</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:34</source>
        <translation>4500K (Neutral white fluorescent)</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:35</source>
        <translation>4000K (Cool white fluorescent)</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:36</source>
        <translation>White Fluorescent</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:48</source>
        <translation>3600K (Tungsten light-like)</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:67</source>
        <translation>Underwater</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:256</source>
        <translation>One Touch WB 1</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:257</source>
        <translation>One Touch WB 2</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:258</source>
        <translation>One Touch WB 3</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:259</source>
        <translation>One Touch WB 4</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:512</source>
        <translation>Custom WB 1</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:513</source>
        <translation>Custom WB 2</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:514</source>
        <translation>Custom WB 3</translation>
    </message>
    <message>
        <source>Olympus:WhiteBalance2:515</source>
        <translation>Custom WB 4</translation>
    </message>
    <message>
        <source>Olympus:ColorSpace</source>
        <translation>Color Space</translation>
    </message>
    <message>
        <source>Olympus:ColorSpace:0</source>
        <translation>sRGB</translation>
    </message>
    <message>
        <source>Olympus:ColorSpace:1</source>
        <translation>Adobe RGB</translation>
    </message>
    <message>
        <source>Olympus:ColorSpace:2</source>
        <translation>Pro Photo RGB</translation>
    </message>
    <message>
        <source>Olympus:DistortionCorrection</source>
        <translation>Distortion Correction</translation>
    </message>
    <message>
        <source>Olympus:DistortionCorrection:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Olympus:DistortionCorrection:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Olympus:ShadingCompensation</source>
        <translation>Shading Compensation</translation>
    </message>
    <message>
        <source>Olympus:ShadingCompensation:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Olympus:ShadingCompensation:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Olympus:Gradation</source>
        <translation>Gradation</translation>
    </message>
    <message>
        <source>Olympus:PictureMode</source>
        <translation>Picture Mode</translation>
    </message>
    <message>
        <source>Olympus:PictureModeBWFilter</source>
        <translation>Picture Mode BW Filter</translation>
    </message>
    <message>
        <source>Olympus:PictureModeBWFilter:0</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Olympus:PictureModeBWFilter:1</source>
        <translation>Neutral</translation>
    </message>
    <message>
        <source>Olympus:PictureModeBWFilter:2</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Olympus:PictureModeBWFilter:3</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Olympus:PictureModeBWFilter:4</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Olympus:PictureModeBWFilter:5</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Olympus:PictureModeTone</source>
        <translation>Picture Mode Tone</translation>
    </message>
    <message>
        <source>Olympus:PictureModeTone:0</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Olympus:PictureModeTone:1</source>
        <translation>Neutral</translation>
    </message>
    <message>
        <source>Olympus:PictureModeTone:2</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Olympus:PictureModeTone:3</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Olympus:PictureModeTone:4</source>
        <translation>Purple</translation>
    </message>
    <message>
        <source>Olympus:PictureModeTone:5</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Olympus:ImageQuality2</source>
        <translation>Image Quality 2</translation>
    </message>
    <message>
        <source>Olympus:ImageQuality2:1</source>
        <translation>SQ</translation>
    </message>
    <message>
        <source>Olympus:ImageQuality2:2</source>
        <translation>HQ</translation>
    </message>
    <message>
        <source>Olympus:ImageQuality2:3</source>
        <translation>SHQ</translation>
    </message>
    <message>
        <source>Olympus:ImageQuality2:4</source>
        <translation>RAW</translation>
    </message>
    <message>
        <source>Olympus:ImageQuality2:5</source>
        <translation>SQ (5)</translation>
    </message>
    <message>
        <source>Olympus:ImageStabilization</source>
        <translation>Image Stabilization</translation>
    </message>
    <message>
        <source>Olympus:ImageStabilization:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Olympus:ImageStabilization:1</source>
        <translation>On, S-IS1 (All Direction Shake IS)</translation>
    </message>
    <message>
        <source>Olympus:ImageStabilization:2</source>
        <translation>On, S-IS2 (Vertical Shake IS)</translation>
    </message>
    <message>
        <source>Olympus:ImageStabilization:3</source>
        <translation>On, S-IS3 (Horizontal Shake IS)</translation>
    </message>
    <message>
        <source>Olympus:ImageStabilization:4</source>
        <translation>On, S-IS Auto</translation>
    </message>
    <message>
        <source>Olympus:LensModel</source>
        <translation>Lens Model</translation>
    </message>
    <message>
        <source>Olympus:LensType</source>
        <translation>Lens Type</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 00 00</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 01 00</source>
        <translation>Olympus Zuiko Digital ED 50mm F2.0 Macro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 01 01</source>
        <translation>Olympus Zuiko Digital 40-150mm F3.5-4.5</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 01 10</source>
        <translation>Olympus M.Zuiko Digital ED 14-42mm F3.5-5.6</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 02 00</source>
        <translation>Olympus Zuiko Digital ED 150mm F2.0</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 02 10</source>
        <translation>Olympus M.Zuiko Digital 17mm F2.8 Pancake</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 03 00</source>
        <translation>Olympus Zuiko Digital ED 300mm F2.8</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 03 10</source>
        <translation>Olympus M.Zuiko Digital ED 14-150mm F4.0-5.6 [II]</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 04 10</source>
        <translation>Olympus M.Zuiko Digital ED 9-18mm F4.0-5.6</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 05 00</source>
        <translation>Olympus Zuiko Digital 14-54mm F2.8-3.5</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 05 01</source>
        <translation>Olympus Zuiko Digital Pro ED 90-250mm F2.8</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 05 10</source>
        <translation>Olympus M.Zuiko Digital ED 14-42mm F3.5-5.6 L</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 06 00</source>
        <translation>Olympus Zuiko Digital ED 50-200mm F2.8-3.5</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 06 01</source>
        <translation>Olympus Zuiko Digital ED 8mm F3.5 Fisheye</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 06 10</source>
        <translation>Olympus M.Zuiko Digital ED 40-150mm F4.0-5.6</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 07 00</source>
        <translation>Olympus Zuiko Digital 11-22mm F2.8-3.5</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 07 01</source>
        <translation>Olympus Zuiko Digital 18-180mm F3.5-6.3</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 07 10</source>
        <translation>Olympus M.Zuiko Digital ED 12mm F2.0</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 08 01</source>
        <translation>Olympus Zuiko Digital 70-300mm F4.0-5.6</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 08 10</source>
        <translation>Olympus M.Zuiko Digital ED 75-300mm F4.8-6.7</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 09 10</source>
        <translation>Olympus M.Zuiko Digital 14-42mm F3.5-5.6 II</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 10 01</source>
        <translation>Kenko Tokina Reflex 300mm F6.3 MF Macro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 10 10</source>
        <translation>Olympus M.Zuiko Digital ED 12-50mm F3.5-6.3 EZ</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 11 10</source>
        <translation>Olympus M.Zuiko Digital 45mm F1.8</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 12 10</source>
        <translation>Olympus M.Zuiko Digital ED 60mm F2.8 Macro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 13 10</source>
        <translation>Olympus M.Zuiko Digital 14-42mm F3.5-5.6 II R</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 14 10</source>
        <translation>Olympus M.Zuiko Digital ED 40-150mm F4.0-5.6 R</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 15 00</source>
        <translation>Olympus Zuiko Digital ED 7-14mm F4.0</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 15 10</source>
        <translation>Olympus M.Zuiko Digital ED 75mm F1.8</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 16 10</source>
        <translation>Olympus M.Zuiko Digital 17mm F1.8</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 17 00</source>
        <translation>Olympus Zuiko Digital Pro ED 35-100mm F2.0</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 18 00</source>
        <translation>Olympus Zuiko Digital 14-45mm F3.5-5.6</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 18 10</source>
        <translation>Olympus M.Zuiko Digital ED 75-300mm F4.8-6.7 II</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 19 10</source>
        <translation>Olympus M.Zuiko Digital ED 12-40mm F2.8 Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 20 00</source>
        <translation>Olympus Zuiko Digital 35mm F3.5 Macro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 20 10</source>
        <translation>Olympus M.Zuiko Digital ED 40-150mm F2.8 Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 21 10</source>
        <translation>Olympus M.Zuiko Digital ED 14-42mm F3.5-5.6 EZ</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 22 00</source>
        <translation>Olympus Zuiko Digital 17.5-45mm F3.5-5.6</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 22 10</source>
        <translation>Olympus M.Zuiko Digital 25mm F1.8</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 23 00</source>
        <translation>Olympus Zuiko Digital ED 14-42mm F3.5-5.6</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 23 10</source>
        <translation>Olympus M.Zuiko Digital ED 7-14mm F2.8 Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 24 00</source>
        <translation>Olympus Zuiko Digital ED 40-150mm F4.0-5.6</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 24 10</source>
        <translation>Olympus M.Zuiko Digital ED 300mm F4.0 IS Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 25 10</source>
        <translation>Olympus M.Zuiko Digital ED 8mm F1.8 Fisheye Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 26 10</source>
        <translation>Olympus M.Zuiko Digital ED 12-100mm F4.0 IS Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 27 10</source>
        <translation>Olympus M.Zuiko Digital ED 30mm F3.5 Macro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 28 10</source>
        <translation>Olympus M.Zuiko Digital ED 25mm F1.2 Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 29 10</source>
        <translation>Olympus M.Zuiko Digital ED 17mm F1.2 Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 30 00</source>
        <translation>Olympus Zuiko Digital ED 50-200mm F2.8-3.5 SWD</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 30 10</source>
        <translation>Olympus M.Zuiko Digital ED 45mm F1.2 Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 31 00</source>
        <translation>Olympus Zuiko Digital ED 12-60mm F2.8-4.0 SWD</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 32 00</source>
        <translation>Olympus Zuiko Digital ED 14-35mm F2.0 SWD</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 32 10</source>
        <translation>Olympus M.Zuiko Digital ED 12-200mm F3.5-6.3</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 33 00</source>
        <translation>Olympus Zuiko Digital 25mm F2.8</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 33 10</source>
        <translation>Olympus M.Zuiko Digital 150-400mm F4.5 TC1.25x IS Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 34 00</source>
        <translation>Olympus Zuiko Digital ED 9-18mm F4.0-5.6</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 34 10</source>
        <translation>Olympus M.Zuiko Digital ED 12-45mm F4.0 Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 35 00</source>
        <translation>Olympus Zuiko Digital 14-54mm F2.8-3.5 II</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 35 10</source>
        <translation>Olympus M.Zuiko 100-400mm F5.0-6.3</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 36 10</source>
        <translation>Olympus M.Zuiko Digital ED 8-25mm F4 Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 37 10</source>
        <translation>Olympus M.Zuiko Digital ED 40-150mm F4.0 Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 38 10</source>
        <translation>Olympus M.Zuiko Digital ED 20mm F1.4 Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 39 10</source>
        <translation>Olympus M.Zuiko Digital ED 90mm F3.5 Macro IS Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 40 10</source>
        <translation>Olympus M.Zuiko Digital ED 150-600mm F5.0-6.3</translation>
    </message>
    <message>
        <source>Olympus:LensType:0 41 10</source>
        <translation>OM System M.Zuiko Digital ED 50-200mm F2.8 IS Pro</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 01 00</source>
        <translation>Sigma 18-50mm F3.5-5.6 DC</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 01 10</source>
        <translation>Sigma 30mm F2.8 EX DN</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 02 00</source>
        <translation>Sigma 55-200mm F4.0-5.6 DC</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 02 10</source>
        <translation>Sigma 19mm F2.8 EX DN</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 03 00</source>
        <translation>Sigma 18-125mm F3.5-5.6 DC</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 03 10</source>
        <translation>Sigma 30mm F2.8 DN | A</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 04 00</source>
        <translation>Sigma 18-125mm F3.5-5.6 DC</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 04 10</source>
        <translation>Sigma 19mm F2.8 DN | A</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 05 00</source>
        <translation>Sigma 30mm F1.4 EX DC HSM</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 05 10</source>
        <translation>Sigma 60mm F2.8 DN | A</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 06 00</source>
        <translation>Sigma APO 50-500mm F4.0-6.3 EX DG HSM</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 06 10</source>
        <translation>Sigma 30mm F1.4 DC DN | C</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 07 00</source>
        <translation>Sigma Macro 105mm F2.8 EX DG</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 07 10</source>
        <translation>Sigma 16mm F1.4 DC DN | C (017)</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 08 00</source>
        <translation>Sigma APO Macro 150mm F2.8 EX DG HSM</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 09 00</source>
        <translation>Sigma 18-50mm F2.8 EX DC Macro</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 10 00</source>
        <translation>Sigma 24mm F1.8 EX DG Aspherical Macro</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 11 00</source>
        <translation>Sigma APO 135-400mm F4.5-5.6 DG</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 12 00</source>
        <translation>Sigma APO 300-800mm F5.6 EX DG HSM</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 13 00</source>
        <translation>Sigma 30mm F1.4 EX DC HSM</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 14 00</source>
        <translation>Sigma APO 50-500mm F4.0-6.3 EX DG HSM</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 15 00</source>
        <translation>Sigma 10-20mm F4.0-5.6 EX DC HSM</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 16 00</source>
        <translation>Sigma APO 70-200mm F2.8 II EX DG Macro HSM</translation>
    </message>
    <message>
        <source>Olympus:LensType:1 17 00</source>
        <translation>Sigma 50mm F1.4 EX DG HSM</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 01 00</source>
        <translation>Leica D Vario Elmarit 14-50mm F2.8-3.5 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 01 10</source>
        <translation>Lumix G Vario 14-45mm F3.5-5.6 Asph. Mega OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 02 00</source>
        <translation>Leica D Summilux 25mm F1.4 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 02 10</source>
        <translation>Lumix G Vario 45-200mm F4.0-5.6 Mega OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 03 00</source>
        <translation>Leica D Vario Elmar 14-50mm F3.8-5.6 Asph. Mega OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 03 01</source>
        <translation>Leica D Vario Elmar 14-50mm F3.8-5.6 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 03 10</source>
        <translation>Lumix G Vario HD 14-140mm F4.0-5.8 Asph. Mega OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 04 00</source>
        <translation>Leica D Vario Elmar 14-150mm F3.5-5.6</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 04 10</source>
        <translation>Lumix G Vario 7-14mm F4.0 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 05 10</source>
        <translation>Lumix G 20mm F1.7 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 06 10</source>
        <translation>Leica DG Macro-Elmarit 45mm F2.8 Asph. Mega OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 07 10</source>
        <translation>Lumix G Vario 14-42mm F3.5-5.6 Asph. Mega OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 08 10</source>
        <translation>Lumix G Fisheye 8mm F3.5</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 09 10</source>
        <translation>Lumix G Vario 100-300mm F4.0-5.6 Mega OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 10 10</source>
        <translation>Lumix G 14mm F2.5 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 11 10</source>
        <translation>Lumix G 12.5mm F12 3D</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 12 10</source>
        <translation>Leica DG Summilux 25mm F1.4 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 13 10</source>
        <translation>Lumix G X Vario PZ 45-175mm F4.0-5.6 Asph. Power OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 14 10</source>
        <translation>Lumix G X Vario PZ 14-42mm F3.5-5.6 Asph. Power OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 15 10</source>
        <translation>Lumix G X Vario 12-35mm F2.8 Asph. Power OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 16 10</source>
        <translation>Lumix G Vario 45-150mm F4.0-5.6 Asph. Mega OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 17 10</source>
        <translation>Lumix G X Vario 35-100mm F2.8 Power OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 18 10</source>
        <translation>Lumix G Vario 14-42mm F3.5-5.6 II Asph. Mega OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 19 10</source>
        <translation>Lumix G Vario 14-140mm F3.5-5.6 Asph. Power OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 20 10</source>
        <translation>Lumix G Vario 12-32mm F3.5-5.6 Asph. Mega OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 21 10</source>
        <translation>Leica DG Nocticron 42.5mm F1.2 Asph. Power OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 22 10</source>
        <translation>Leica DG Summilux 15mm F1.7 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 23 10</source>
        <translation>Lumix G Vario 35-100mm F4.0-5.6 Asph. Mega OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 24 10</source>
        <translation>Lumix G Macro 30mm F2.8 Asph. Mega OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 25 10</source>
        <translation>Lumix G 42.5mm F1.7 Asph. Power OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 26 10</source>
        <translation>Lumix G 25mm F1.7 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 27 10</source>
        <translation>Leica DG Vario-Elmar 100-400mm F4.0-6.3 Asph. Power OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 28 10</source>
        <translation>Lumix G Vario 12-60mm F3.5-5.6 Asph. Power OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 29 10</source>
        <translation>Leica DG Summilux 12mm F1.4 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 30 10</source>
        <translation>Leica DG Vario-Elmarit 12-60mm F2.8-4 Asph. Power OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 31 10</source>
        <translation>Lumix G Vario 45-200mm F4.0-5.6 II</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 32 10</source>
        <translation>Lumix G Vario 100-300mm F4.0-5.6 II</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 33 10</source>
        <translation>Lumix G X Vario 12-35mm F2.8 II Asph. Power OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 34 10</source>
        <translation>Lumix G Vario 35-100mm F2.8 II</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 35 10</source>
        <translation>Leica DG Vario-Elmarit 8-18mm F2.8-4 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 36 10</source>
        <translation>Leica DG Elmarit 200mm F2.8 Power OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 37 10</source>
        <translation>Leica DG Vario-Elmarit 50-200mm F2.8-4 Asph. Power OIS</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 38 10</source>
        <translation>Leica DG Vario-Summilux 10-25mm F1.7 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 39 10</source>
        <translation>Leica DG Summilux 25mm F1.4 II Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 40 10</source>
        <translation>Leica DG Vario-Summilux 25-50mm F1.7 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:2 41 10</source>
        <translation>Leica DG Summilux 9mm F1.7 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:3 01 00</source>
        <translation>Leica D Vario Elmarit 14-50mm F2.8-3.5 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:3 02 00</source>
        <translation>Leica D Summilux 25mm F1.4 Asph.</translation>
    </message>
    <message>
        <source>Olympus:LensType:5 01 10</source>
        <translation>Tamron 14-150mm F3.5-5.8 Di III</translation>
    </message>
    <message>
        <source>Olympus:LensType:24 01 10</source>
        <translation>Venus Optics Laowa 50mm F2.8 2x Macro</translation>
    </message>
    <message>
        <source>Olympus:LensType:247 03 10</source>
        <translation>LAOWA C&amp;D-Dreamer MFT 7.5mm F2.0</translation>
    </message>
    <message>
        <source>Olympus:LensType:247 10 10</source>
        <translation>LAOWA C&amp;D-Dreamer MFT 6.0mm F2.0</translation>
    </message>
    <message>
        <source>Olympus:LensType:65522 02 10</source>
        <translation>Xiaoyi 42.5mm F1.8</translation>
    </message>
    <message>
        <source>Olympus:LensSerialNumber</source>
        <translation>Lens Serial Number</translation>
    </message>
    <message>
        <source>Olympus:BodyFirmwareVersion</source>
        <translation>Body Firmware Version</translation>
    </message>
    <message>
        <source>Olympus:FlashType</source>
        <translation>Flash Type</translation>
    </message>
    <message>
        <source>Olympus:FlashType:0</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Olympus:FlashType:2</source>
        <translation>Simple E-System</translation>
    </message>
    <message>
        <source>Olympus:FlashType:3</source>
        <translation>E-System</translation>
    </message>
    <message>
        <source>Olympus:FlashType:4</source>
        <translation>E-System (body powered)</translation>
    </message>
    <message>
        <source>Olympus:FlashModel</source>
        <translation>Flash Model</translation>
    </message>
    <message>
        <source>Olympus:FlashModel:0</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Olympus:FlashModel:1</source>
        <translation>FL-20</translation>
    </message>
    <message>
        <source>Olympus:FlashModel:2</source>
        <translation>FL-50</translation>
    </message>
    <message>
        <source>Olympus:FlashModel:3</source>
        <translation>RF-11</translation>
    </message>
    <message>
        <source>Olympus:FlashModel:4</source>
        <translation>TF-22</translation>
    </message>
    <message>
        <source>Olympus:FlashModel:5</source>
        <translation>FL-36</translation>
    </message>
    <message>
        <source>Olympus:FlashModel:6</source>
        <translation>FL-50R</translation>
    </message>
    <message>
        <source>Olympus:FlashModel:7</source>
        <translation>FL-36R</translation>
    </message>
    <message>
        <source>Olympus:FlashModel:9</source>
        <translation>FL-14</translation>
    </message>
    <message>
        <source>Olympus:FlashModel:11</source>
        <translation>FL-600R</translation>
    </message>
    <message>
        <source>Olympus:FlashModel:13</source>
        <translation>FL-LM3</translation>
    </message>
    <message>
        <source>Olympus:FlashModel:15</source>
        <translation>FL-900R</translation>
    </message>
    <message>
        <source>Panasonic:ImageQuality</source>
        <translation>Image Quality</translation>
    </message>
    <message>
        <source>Panasonic:ImageQuality:1</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>Panasonic:ImageQuality:2</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Panasonic:ImageQuality:3</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Panasonic:ImageQuality:6</source>
        <translation>Very High</translation>
    </message>
    <message>
        <source>Panasonic:ImageQuality:7</source>
        <translation>RAW</translation>
    </message>
    <message>
        <source>Panasonic:ImageQuality:9</source>
        <translation>Motion Picture</translation>
    </message>
    <message>
        <source>Panasonic:ImageQuality:11</source>
        <translation>Full HD Movie</translation>
    </message>
    <message>
        <source>Panasonic:ImageQuality:12</source>
        <translation>4k Movie</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance</source>
        <translation>White Balance</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance:1</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance:2</source>
        <translation>Daylight</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance:3</source>
        <translation>Cloudy</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance:4</source>
        <translation>Incandescent</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance:5</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance:8</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance:10</source>
        <translation>Black &amp; White</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance:11</source>
        <translation>Manual 2</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance:12</source>
        <translation>Shade</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance:13</source>
        <translation>Kelvin</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance:14</source>
        <translation>Manual 3</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance:15</source>
        <translation>Manual 4</translation>
    </message>
    <message>
        <source>Panasonic:WhiteBalance:19</source>
        <translation>Auto (cool)</translation>
    </message>
    <message>
        <source>Panasonic:FocusMode</source>
        <translation>Focus Mode</translation>
    </message>
    <message>
        <source>Panasonic:FocusMode:1</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Panasonic:FocusMode:2</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Panasonic:FocusMode:4</source>
        <translation>Auto, Focus button</translation>
    </message>
    <message>
        <source>Panasonic:FocusMode:5</source>
        <translation>Auto, Continuous</translation>
    </message>
    <message>
        <source>Panasonic:FocusMode:6</source>
        <translation>AF-S</translation>
    </message>
    <message>
        <source>Panasonic:FocusMode:7</source>
        <translation>AF-C</translation>
    </message>
    <message>
        <source>Panasonic:FocusMode:8</source>
        <translation>AF-F</translation>
    </message>
    <message>
        <source>Panasonic:ImageStabilization</source>
        <translation>Image Stabilization</translation>
    </message>
    <message>
        <source>Panasonic:ImageStabilization:2</source>
        <translation>On, Optical</translation>
    </message>
    <message>
        <source>Panasonic:ImageStabilization:3</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Panasonic:ImageStabilization:4</source>
        <translation>On, Mode 2</translation>
    </message>
    <message>
        <source>Panasonic:ImageStabilization:5</source>
        <translation>On, Optical Panning</translation>
    </message>
    <message>
        <source>Panasonic:ImageStabilization:6</source>
        <translation>On, Body-only</translation>
    </message>
    <message>
        <source>Panasonic:ImageStabilization:7</source>
        <translation>On, Body-only Panning</translation>
    </message>
    <message>
        <source>Panasonic:ImageStabilization:9</source>
        <translation>Dual IS</translation>
    </message>
    <message>
        <source>Panasonic:ImageStabilization:10</source>
        <translation>Dual IS Panning</translation>
    </message>
    <message>
        <source>Panasonic:ImageStabilization:11</source>
        <translation>Dual2 IS</translation>
    </message>
    <message>
        <source>Panasonic:ImageStabilization:12</source>
        <translation>Dual2 IS Panning</translation>
    </message>
    <message>
        <source>Panasonic:MacroMode</source>
        <translation>Macro Mode</translation>
    </message>
    <message>
        <source>Panasonic:MacroMode:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Panasonic:MacroMode:2</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Panasonic:MacroMode:257</source>
        <translation>Tele-Macro</translation>
    </message>
    <message>
        <source>Panasonic:MacroMode:513</source>
        <translation>Macro Zoom</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode</source>
        <translation>Shooting Mode</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:1</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:2</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:3</source>
        <translation>Scenery</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:4</source>
        <translation>Sports</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:5</source>
        <translation>Night Portrait</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:6</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:7</source>
        <translation>Aperture Priority</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:8</source>
        <translation>Shutter Priority</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:9</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:10</source>
        <translation>Spot</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:11</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:12</source>
        <translation>Movie Preview</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:13</source>
        <translation>Panning</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:14</source>
        <translation>Simple</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:15</source>
        <translation>Color Effects</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:16</source>
        <translation>Self Portrait</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:17</source>
        <translation>Economy</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:18</source>
        <translation>Fireworks</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:19</source>
        <translation>Party</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:20</source>
        <translation>Snow</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:21</source>
        <translation>Night Scenery</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:22</source>
        <translation>Food</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:23</source>
        <translation>Baby</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:24</source>
        <translation>Soft Skin</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:25</source>
        <translation>Candlelight</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:26</source>
        <translation>Starry Night</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:27</source>
        <translation>High Sensitivity</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:28</source>
        <translation>Panorama Assist</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:29</source>
        <translation>Underwater</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:30</source>
        <translation>Beach</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:31</source>
        <translation>Aerial Photo</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:32</source>
        <translation>Sunset</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:33</source>
        <translation>Pet</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:34</source>
        <translation>Intelligent ISO</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:35</source>
        <translation>Clipboard</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:36</source>
        <translation>High Speed Continuous Shooting</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:37</source>
        <translation>Intelligent Auto</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:39</source>
        <translation>Multi-aspect</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:41</source>
        <translation>Transform</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:42</source>
        <translation>Flash Burst</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:43</source>
        <translation>Pin Hole</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:44</source>
        <translation>Film Grain</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:45</source>
        <translation>My Color</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:46</source>
        <translation>Photo Frame</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:48</source>
        <translation>Movie</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:51</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:52</source>
        <translation>Peripheral Defocus</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:55</source>
        <translation>Handheld Night Shot</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:57</source>
        <translation>3D</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:59</source>
        <translation>Creative Control</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:60</source>
        <translation>Intelligent Auto Plus</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:62</source>
        <translation>Panorama</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:63</source>
        <translation>Glass Through</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:64</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:66</source>
        <translation>Digital Filter</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:67</source>
        <translation>Clear Portrait</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:68</source>
        <translation>Silky Skin</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:69</source>
        <translation>Backlit Softness</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:70</source>
        <translation>Clear in Backlight</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:71</source>
        <translation>Relaxing Tone</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:72</source>
        <translation>Sweet Child&apos;s Face</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:73</source>
        <translation>Distinct Scenery</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:74</source>
        <translation>Bright Blue Sky</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:75</source>
        <translation>Romantic Sunset Glow</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:76</source>
        <translation>Vivid Sunset Glow</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:77</source>
        <translation>Glistening Water</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:78</source>
        <translation>Clear Nightscape</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:79</source>
        <translation>Cool Night Sky</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:80</source>
        <translation>Warm Glowing Nightscape</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:81</source>
        <translation>Artistic Nightscape</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:82</source>
        <translation>Glittering Illuminations</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:83</source>
        <translation>Clear Night Portrait</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:84</source>
        <translation>Soft Image of a Flower</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:85</source>
        <translation>Appetizing Food</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:86</source>
        <translation>Cute Dessert</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:87</source>
        <translation>Freeze Animal Motion</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:88</source>
        <translation>Clear Sports Shot</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:89</source>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:90</source>
        <translation>Creative Control</translation>
    </message>
    <message>
        <source>Panasonic:ShootingMode:92</source>
        <translation>Handheld Night Shot</translation>
    </message>
    <message>
        <source>Panasonic:Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Panasonic:Audio:1</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Panasonic:Audio:2</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Panasonic:Audio:3</source>
        <translation>Stereo</translation>
    </message>
    <message>
        <source>Panasonic:ColorEffect</source>
        <translation>Color Effect</translation>
    </message>
    <message>
        <source>Panasonic:ColorEffect:1</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Panasonic:ColorEffect:2</source>
        <translation>Warm</translation>
    </message>
    <message>
        <source>Panasonic:ColorEffect:3</source>
        <translation>Cool</translation>
    </message>
    <message>
        <source>Panasonic:ColorEffect:4</source>
        <translation>Black &amp; White</translation>
    </message>
    <message>
        <source>Panasonic:ColorEffect:5</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Panasonic:ColorEffect:6</source>
        <translation>Happy</translation>
    </message>
    <message>
        <source>Panasonic:ColorEffect:8</source>
        <translation>Vivid</translation>
    </message>
    <message>
        <source>Panasonic:BurstMode</source>
        <translation>Burst Mode</translation>
    </message>
    <message>
        <source>Panasonic:BurstMode:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Panasonic:BurstMode:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Panasonic:BurstMode:2</source>
        <translation>Auto Exposure Bracketing (AEB)</translation>
    </message>
    <message>
        <source>Panasonic:BurstMode:3</source>
        <translation>Focus Bracketing</translation>
    </message>
    <message>
        <source>Panasonic:BurstMode:4</source>
        <translation>Unlimited</translation>
    </message>
    <message>
        <source>Panasonic:BurstMode:8</source>
        <translation>White Balance Bracketing</translation>
    </message>
    <message>
        <source>Panasonic:BurstMode:17</source>
        <translation>On (with flash)</translation>
    </message>
    <message>
        <source>Panasonic:BurstMode:18</source>
        <translation>Aperture Bracketing</translation>
    </message>
    <message>
        <source>Panasonic:NoiseReduction</source>
        <translation>Noise Reduction</translation>
    </message>
    <message>
        <source>Panasonic:NoiseReduction:0</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Panasonic:NoiseReduction:1</source>
        <translation>Low (-1)</translation>
    </message>
    <message>
        <source>Panasonic:NoiseReduction:2</source>
        <translation>High (+1)</translation>
    </message>
    <message>
        <source>Panasonic:NoiseReduction:3</source>
        <translation>Lowest (-2)</translation>
    </message>
    <message>
        <source>Panasonic:NoiseReduction:4</source>
        <translation>Highest (+2)</translation>
    </message>
    <message>
        <source>Panasonic:NoiseReduction:5</source>
        <translation>+5</translation>
    </message>
    <message>
        <source>Panasonic:NoiseReduction:6</source>
        <translation>+6</translation>
    </message>
    <message>
        <source>Panasonic:NoiseReduction:65531</source>
        <translation>-5</translation>
    </message>
    <message>
        <source>Panasonic:NoiseReduction:65532</source>
        <translation>-4</translation>
    </message>
    <message>
        <source>Panasonic:NoiseReduction:65533</source>
        <translation>-3</translation>
    </message>
    <message>
        <source>Panasonic:NoiseReduction:65534</source>
        <translation>-2</translation>
    </message>
    <message>
        <source>Panasonic:NoiseReduction:65535</source>
        <translation>-1</translation>
    </message>
    <message>
        <source>Panasonic:SelfTimer</source>
        <translation>Self Timer</translation>
    </message>
    <message>
        <source>Panasonic:SelfTimer:0</source>
        <translation>Off (0)</translation>
    </message>
    <message>
        <source>Panasonic:SelfTimer:1</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Panasonic:SelfTimer:2</source>
        <translation>10 s</translation>
    </message>
    <message>
        <source>Panasonic:SelfTimer:3</source>
        <translation>2 s</translation>
    </message>
    <message>
        <source>Panasonic:SelfTimer:4</source>
        <translation>10 s / 3 pictures</translation>
    </message>
    <message>
        <source>Panasonic:SelfTimer:258</source>
        <translation>2 s after shutter pressed</translation>
    </message>
    <message>
        <source>Panasonic:SelfTimer:266</source>
        <translation>10 s after shutter pressed</translation>
    </message>
    <message>
        <source>Panasonic:SelfTimer:778</source>
        <translation>3 photos after 10 s</translation>
    </message>
    <message>
        <source>Panasonic:Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Panasonic:Rotation:1</source>
        <translation>Horizontal (normal)</translation>
    </message>
    <message>
        <source>Panasonic:Rotation:3</source>
        <translation>Rotate 180</translation>
    </message>
    <message>
        <source>Panasonic:Rotation:6</source>
        <translation>Rotate 90 CW</translation>
    </message>
    <message>
        <source>Panasonic:Rotation:8</source>
        <translation>Rotate 270 CW</translation>
    </message>
    <message>
        <source>Panasonic:AFAssistLamp</source>
        <translation>AF Assist Lamp</translation>
    </message>
    <message>
        <source>Panasonic:AFAssistLamp:1</source>
        <translation>Fired</translation>
    </message>
    <message>
        <source>Panasonic:AFAssistLamp:2</source>
        <translation>Enabled but Not Used</translation>
    </message>
    <message>
        <source>Panasonic:AFAssistLamp:3</source>
        <translation>Disabled but Required</translation>
    </message>
    <message>
        <source>Panasonic:AFAssistLamp:4</source>
        <translation>Disabled and Not Required</translation>
    </message>
    <message>
        <source>Panasonic:ColorMode</source>
        <translation>Color Mode</translation>
    </message>
    <message>
        <source>Panasonic:ColorMode:0</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Panasonic:ColorMode:1</source>
        <translation>Natural</translation>
    </message>
    <message>
        <source>Panasonic:ColorMode:2</source>
        <translation>Vivid</translation>
    </message>
    <message>
        <source>Panasonic:OpticalZoomMode</source>
        <translation>Optical Zoom Mode</translation>
    </message>
    <message>
        <source>Panasonic:OpticalZoomMode:1</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Panasonic:OpticalZoomMode:2</source>
        <translation>Extended</translation>
    </message>
    <message>
        <source>Panasonic:ConversionLens</source>
        <translation>Conversion Lens</translation>
    </message>
    <message>
        <source>Panasonic:ConversionLens:1</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Panasonic:ConversionLens:2</source>
        <translation>Wide</translation>
    </message>
    <message>
        <source>Panasonic:ConversionLens:3</source>
        <translation>Telephoto</translation>
    </message>
    <message>
        <source>Panasonic:ConversionLens:4</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Panasonic:BatteryLevel</source>
        <translation>Battery Level</translation>
    </message>
    <message>
        <source>Panasonic:BatteryLevel:1</source>
        <translation>Full</translation>
    </message>
    <message>
        <source>Panasonic:BatteryLevel:2</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Panasonic:BatteryLevel:3</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Panasonic:BatteryLevel:4</source>
        <translation>Near Empty</translation>
    </message>
    <message>
        <source>Panasonic:BatteryLevel:7</source>
        <translation>Near Full</translation>
    </message>
    <message>
        <source>Panasonic:BatteryLevel:8</source>
        <translation>Medium Low</translation>
    </message>
    <message>
        <source>Panasonic:BatteryLevel:256</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Panasonic:FilmMode</source>
        <translation>Film Mode</translation>
    </message>
    <message>
        <source>Panasonic:FilmMode:0</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Panasonic:FilmMode:1</source>
        <translation>Standard (color)</translation>
    </message>
    <message>
        <source>Panasonic:FilmMode:2</source>
        <translation>Dynamic (color)</translation>
    </message>
    <message>
        <source>Panasonic:FilmMode:3</source>
        <translation>Nature (color)</translation>
    </message>
    <message>
        <source>Panasonic:FilmMode:4</source>
        <translation>Smooth (color)</translation>
    </message>
    <message>
        <source>Panasonic:FilmMode:5</source>
        <translation>Standard (B&amp;W)</translation>
    </message>
    <message>
        <source>Panasonic:FilmMode:6</source>
        <translation>Dynamic (B&amp;W)</translation>
    </message>
    <message>
        <source>Panasonic:FilmMode:7</source>
        <translation>Smooth (B&amp;W)</translation>
    </message>
    <message>
        <source>Panasonic:FilmMode:10</source>
        <translation>Nostalgic</translation>
    </message>
    <message>
        <source>Panasonic:FilmMode:11</source>
        <translation>Vibrant</translation>
    </message>
    <message>
        <source>Panasonic:JPEGQuality</source>
        <translation>JPEG Quality</translation>
    </message>
    <message>
        <source>Panasonic:JPEGQuality:0</source>
        <translation>n/a (Movie)</translation>
    </message>
    <message>
        <source>Panasonic:JPEGQuality:2</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Panasonic:JPEGQuality:3</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Panasonic:JPEGQuality:6</source>
        <translation>Very High</translation>
    </message>
    <message>
        <source>Panasonic:JPEGQuality:255</source>
        <translation>n/a (RAW only)</translation>
    </message>
    <message>
        <source>Panasonic:BracketSettings</source>
        <translation>Bracket Settings</translation>
    </message>
    <message>
        <source>Panasonic:BracketSettings:0</source>
        <translation>No Bracket</translation>
    </message>
    <message>
        <source>Panasonic:BracketSettings:1</source>
        <translation>3 Images, Sequence 0/-/+</translation>
    </message>
    <message>
        <source>Panasonic:BracketSettings:2</source>
        <translation>3 Images, Sequence -/0/+</translation>
    </message>
    <message>
        <source>Panasonic:BracketSettings:3</source>
        <translation>5 Images, Sequence 0/-/+</translation>
    </message>
    <message>
        <source>Panasonic:BracketSettings:4</source>
        <translation>5 Images, Sequence -/0/+</translation>
    </message>
    <message>
        <source>Panasonic:BracketSettings:5</source>
        <translation>7 Images, Sequence 0/-/+</translation>
    </message>
    <message>
        <source>Panasonic:BracketSettings:6</source>
        <translation>7 Images, Sequence -/0/+</translation>
    </message>
    <message>
        <source>Panasonic:FlashCurtain</source>
        <translation>Flash Curtain</translation>
    </message>
    <message>
        <source>Panasonic:FlashCurtain:0</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Panasonic:FlashCurtain:1</source>
        <translation>1st</translation>
    </message>
    <message>
        <source>Panasonic:FlashCurtain:2</source>
        <translation>2nd</translation>
    </message>
    <message>
        <source>Panasonic:LongExposureNoiseReduction</source>
        <translation>Long Exposure Noise Reduction</translation>
    </message>
    <message>
        <source>Panasonic:LongExposureNoiseReduction:1</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Panasonic:LongExposureNoiseReduction:2</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Panasonic:LensType</source>
        <translation>Lens Type</translation>
    </message>
    <message>
        <source>Panasonic:LensSerialNumber</source>
        <translation>Lens Serial Number</translation>
    </message>
    <message>
        <source>Panasonic:IntelligentExposure</source>
        <translation>Intelligent Exposure</translation>
    </message>
    <message>
        <source>Panasonic:IntelligentExposure:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Panasonic:IntelligentExposure:1</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Panasonic:IntelligentExposure:2</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Panasonic:IntelligentExposure:3</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Panasonic:IntelligentResolution</source>
        <translation>Intelligent Resolution</translation>
    </message>
    <message>
        <source>Panasonic:IntelligentResolution:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Panasonic:IntelligentResolution:1</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Panasonic:IntelligentResolution:2</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Panasonic:IntelligentResolution:3</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Panasonic:IntelligentResolution:4</source>
        <translation>Extended</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle</source>
        <translation>Photo Style</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:0</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:1</source>
        <translation>Standard or Custom</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:2</source>
        <translation>Vivid</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:3</source>
        <translation>Natural</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:4</source>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:5</source>
        <translation>Scenery</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:6</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:8</source>
        <translation>Cinelike D</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:9</source>
        <translation>Cinelike V</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:11</source>
        <translation>L. Monochrome</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:12</source>
        <translation>Like709</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:15</source>
        <translation>L. Monochrome D</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:17</source>
        <translation>V-Log</translation>
    </message>
    <message>
        <source>Panasonic:PhotoStyle:18</source>
        <translation>Cinelike D2</translation>
    </message>
    <message>
        <source>Panasonic:CameraOrientation</source>
        <translation>Camera Orientation</translation>
    </message>
    <message>
        <source>Panasonic:CameraOrientation:0</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Panasonic:CameraOrientation:1</source>
        <translation>Rotate CW</translation>
    </message>
    <message>
        <source>Panasonic:CameraOrientation:2</source>
        <translation>Rotate 180</translation>
    </message>
    <message>
        <source>Panasonic:CameraOrientation:3</source>
        <translation>Rotate CCW</translation>
    </message>
    <message>
        <source>Panasonic:CameraOrientation:4</source>
        <translation>Tilt Upwards</translation>
    </message>
    <message>
        <source>Panasonic:CameraOrientation:5</source>
        <translation>Tilt Downwards</translation>
    </message>
    <message>
        <source>Panasonic:HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Panasonic:HDR:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Panasonic:HDR:100</source>
        <translation>1 EV</translation>
    </message>
    <message>
        <source>Panasonic:HDR:200</source>
        <translation>2 EV</translation>
    </message>
    <message>
        <source>Panasonic:HDR:300</source>
        <translation>3 EV</translation>
    </message>
    <message>
        <source>Panasonic:HDR:32868</source>
        <translation>1 EV (Auto)</translation>
    </message>
    <message>
        <source>Panasonic:HDR:32968</source>
        <translation>2 EV (Auto)</translation>
    </message>
    <message>
        <source>Panasonic:HDR:33068</source>
        <translation>3 EV (Auto)</translation>
    </message>
    <message>
        <source>Panasonic:ShutterType</source>
        <translation>Shutter Type</translation>
    </message>
    <message>
        <source>Panasonic:ShutterType:0</source>
        <translation>Mechanical</translation>
    </message>
    <message>
        <source>Panasonic:ShutterType:1</source>
        <translation>Electronic</translation>
    </message>
    <message>
        <source>Panasonic:ShutterType:2</source>
        <translation>Hybrid</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect</source>
        <translation>Filter Effect</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 1</source>
        <translation>Expressive</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 2</source>
        <translation>Retro</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 4</source>
        <translation>High Key</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 8</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 16</source>
        <translation>High Dynamic</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 32</source>
        <translation>Miniature Effect</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 1024</source>
        <translation>Dynamic Monochrome</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 1048576</source>
        <translation>Sunshine</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 134217728</source>
        <translation>Silky Monochrome</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 16384</source>
        <translation>One Point Color</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 2048</source>
        <translation>Soft Focus</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 2097152</source>
        <translation>Bleach Bypass</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 256</source>
        <translation>Low Key</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 32768</source>
        <translation>Star Filter</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 33554432</source>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 4096</source>
        <translation>Impressive Art</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 4194304</source>
        <translation>Toy Pop</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 512</source>
        <translation>Toy Effect</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 524288</source>
        <translation>Old Days</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 67108864</source>
        <translation>Rough Monochrome</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 8192</source>
        <translation>Cross Process</translation>
    </message>
    <message>
        <source>Panasonic:FilterEffect:0 8388608</source>
        <translation>Fantasy</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID</source>
        <translation>Pentax Model ID</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:13</source>
        <translation>Optio 330/430</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76070</source>
        <translation>Optio 230</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76120</source>
        <translation>Optio 330GS</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76130</source>
        <translation>Optio 450/550</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76140</source>
        <translation>Optio S</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76145</source>
        <translation>Optio S V1.01</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76180</source>
        <translation>*ist D</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76210</source>
        <translation>Optio 33L</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76220</source>
        <translation>Optio 33LF</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76230</source>
        <translation>Optio 33WR/43WR/555</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76245</source>
        <translation>Optio S4</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76290</source>
        <translation>Optio MX</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76300</source>
        <translation>Optio S40</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76310</source>
        <translation>Optio S4i</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76340</source>
        <translation>Optio 30</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76370</source>
        <translation>Optio S30</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76390</source>
        <translation>Optio 750Z</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76400</source>
        <translation>Optio SV</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76405</source>
        <translation>Optio SVi</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76410</source>
        <translation>Optio X</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76430</source>
        <translation>Optio S5i</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76440</source>
        <translation>Optio S50</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76450</source>
        <translation>*ist DS</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76470</source>
        <translation>Optio MX4</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76480</source>
        <translation>Optio S5n</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76490</source>
        <translation>Optio WP</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76540</source>
        <translation>Optio S55</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76560</source>
        <translation>Optio S5z</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76570</source>
        <translation>*ist DL</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76580</source>
        <translation>Optio S60</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76590</source>
        <translation>Optio S45</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76600</source>
        <translation>Optio S6</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76620</source>
        <translation>Optio WPi</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76630</source>
        <translation>BenQ DC X600</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76640</source>
        <translation>*ist DS2</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76642</source>
        <translation>Samsung GX-1S</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76650</source>
        <translation>Optio A10</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76670</source>
        <translation>*ist DL2</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76672</source>
        <translation>Samsung GX-1L</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76700</source>
        <translation>K100D</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76701</source>
        <translation>K110D</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76706</source>
        <translation>K100D Super</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76720</source>
        <translation>Optio T10/T20</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76770</source>
        <translation>Optio W10</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76790</source>
        <translation>Optio M10</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76830</source>
        <translation>K10D</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76832</source>
        <translation>Samsung GX10</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76840</source>
        <translation>Optio S7</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76845</source>
        <translation>Optio L20</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76850</source>
        <translation>Optio M20</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76860</source>
        <translation>Optio W20</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76870</source>
        <translation>Optio A20</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76920</source>
        <translation>Optio E30</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76925</source>
        <translation>Optio E35</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76930</source>
        <translation>Optio T30</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76940</source>
        <translation>Optio M30</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76945</source>
        <translation>Optio L30</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76950</source>
        <translation>Optio W30</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76960</source>
        <translation>Optio A30</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76980</source>
        <translation>Optio E40</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76990</source>
        <translation>Optio M40</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76995</source>
        <translation>Optio L40</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:76997</source>
        <translation>Optio L36</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77000</source>
        <translation>Optio Z10</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77010</source>
        <translation>K20D</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77012</source>
        <translation>Samsung GX20</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77020</source>
        <translation>Optio S10</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77030</source>
        <translation>Optio A40</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77040</source>
        <translation>Optio V10</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77050</source>
        <translation>K200D</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77060</source>
        <translation>Optio S12</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77070</source>
        <translation>Optio E50</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77080</source>
        <translation>Optio M50</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77090</source>
        <translation>Optio L50</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77100</source>
        <translation>Optio V20</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77120</source>
        <translation>Optio W60</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77130</source>
        <translation>Optio M60</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77160</source>
        <translation>Optio E60/M90</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77170</source>
        <translation>K2000</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77171</source>
        <translation>K-m</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77190</source>
        <translation>Optio P70</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77200</source>
        <translation>Optio L70</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77210</source>
        <translation>Optio E70</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77230</source>
        <translation>X70</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77240</source>
        <translation>K-7</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77260</source>
        <translation>Optio W80</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77290</source>
        <translation>Optio P80</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77300</source>
        <translation>Optio WS80</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77310</source>
        <translation>K-x</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77320</source>
        <translation>645D</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77330</source>
        <translation>Optio E80</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77360</source>
        <translation>Optio W90</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77370</source>
        <translation>Optio I-10</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77380</source>
        <translation>Optio H90</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77390</source>
        <translation>Optio E90</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77400</source>
        <translation>X90</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77420</source>
        <translation>K-r</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77430</source>
        <translation>K-5</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77450</source>
        <translation>Optio RS1000/RS1500</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77460</source>
        <translation>Optio RZ10</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77470</source>
        <translation>Optio LS1000</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77500</source>
        <translation>Optio WG-1 GPS</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77520</source>
        <translation>Optio S1</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77540</source>
        <translation>Q</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77560</source>
        <translation>K-01</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77580</source>
        <translation>Optio RZ18</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77590</source>
        <translation>Optio VS20</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77610</source>
        <translation>Optio WG-2 GPS</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77640</source>
        <translation>Optio LS465</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77650</source>
        <translation>K-30</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77660</source>
        <translation>X-5</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77670</source>
        <translation>Q10</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77680</source>
        <translation>K-5 II</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77681</source>
        <translation>K-5 II s</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77690</source>
        <translation>Q7</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77700</source>
        <translation>MX-1</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77710</source>
        <translation>WG-3 GPS</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77720</source>
        <translation>WG-3</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77730</source>
        <translation>WG-10</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77750</source>
        <translation>K-50</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77760</source>
        <translation>K-3</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77770</source>
        <translation>K-500</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77790</source>
        <translation>WG-4 GPS</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77800</source>
        <translation>WG-4</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77830</source>
        <translation>WG-20</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77840</source>
        <translation>645Z</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77850</source>
        <translation>K-S1</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77860</source>
        <translation>K-S2</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77870</source>
        <translation>Q-S1</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77910</source>
        <translation>WG-30</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77950</source>
        <translation>WG-30W</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77960</source>
        <translation>WG-5 GPS</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77970</source>
        <translation>K-1</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:77980</source>
        <translation>K-3 II</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:78320</source>
        <translation>WG-M2</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:78350</source>
        <translation>GR III</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:78370</source>
        <translation>K-70</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:78380</source>
        <translation>KP</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:78400</source>
        <translation>K-1 Mark II</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:78420</source>
        <translation>K-3 Mark III</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:78480</source>
        <translation>WG-70</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:78490</source>
        <translation>GR IIIx</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:78520</source>
        <translation>KF</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:78550</source>
        <translation>K-3 Mark III Monochrome</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:78560</source>
        <translation>GR IV</translation>
    </message>
    <message>
        <source>Pentax:PentaxModelID:78640</source>
        <translation>GR IV Monochrome</translation>
    </message>
    <message>
        <source>Pentax:Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Pentax:Quality:0</source>
        <translation>Good</translation>
    </message>
    <message>
        <source>Pentax:Quality:1</source>
        <translation>Better</translation>
    </message>
    <message>
        <source>Pentax:Quality:2</source>
        <translation>Best</translation>
    </message>
    <message>
        <source>Pentax:Quality:3</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>Pentax:Quality:4</source>
        <translation>RAW</translation>
    </message>
    <message>
        <source>Pentax:Quality:5</source>
        <translation>Premium</translation>
    </message>
    <message>
        <source>Pentax:Quality:7</source>
        <translation>RAW (pixel shift enabled)</translation>
    </message>
    <message>
        <source>Pentax:Quality:8</source>
        <translation>Dynamic Pixel Shift</translation>
    </message>
    <message>
        <source>Pentax:Quality:9</source>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Pentax:Quality:65535</source>
        <translation>n/a</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize</source>
        <translation>Pentax Image Size</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:0</source>
        <translation>640x480</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:1</source>
        <translation>Full</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:2</source>
        <translation>1024x768</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:3</source>
        <translation>1280x960</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:4</source>
        <translation>1600x1200</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:5</source>
        <translation>2048x1536</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:8</source>
        <translation>2560x1920 or 2304x1728</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:9</source>
        <translation>3072x2304</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:10</source>
        <translation>3264x2448</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:19</source>
        <translation>320x240</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:20</source>
        <translation>2288x1712</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:21</source>
        <translation>2592x1944</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:22</source>
        <translation>2304x1728 or 2592x1944</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:23</source>
        <translation>3056x2296</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:25</source>
        <translation>2816x2212 or 2816x2112</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:27</source>
        <translation>3648x2736</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:29</source>
        <translation>4000x3000</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:30</source>
        <translation>4288x3216</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:31</source>
        <translation>4608x3456</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:129</source>
        <translation>1920x1080</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:135</source>
        <translation>4608x2592</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:257</source>
        <translation>3216x3216</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:0 0</source>
        <translation>2304x1728</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:4 0</source>
        <translation>1600x1200</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:5 0</source>
        <translation>2048x1536</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:8 0</source>
        <translation>2560x1920</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:32 2</source>
        <translation>960x640</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:33 2</source>
        <translation>1152x768</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:34 2</source>
        <translation>1536x1024</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:35 1</source>
        <translation>2400x1600</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:36 0</source>
        <translation>3008x2008 or 3040x2024</translation>
    </message>
    <message>
        <source>Pentax:PentaxImageSize:37 0</source>
        <translation>3008x2000</translation>
    </message>
    <message>
        <source>Pentax:PictureMode</source>
        <translation>Picture Mode</translation>
    </message>
    <message>
        <source>Pentax:FlashMode</source>
        <translation>Flash Mode</translation>
    </message>
    <message>
        <source>Pentax:FocusMode</source>
        <translation>Focus Mode</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:0</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:1</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:2</source>
        <translation>Infinity</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:3</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:4</source>
        <translation>Super Macro</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:5</source>
        <translation>Pan Focus</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:6</source>
        <translation>Auto-area</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:7</source>
        <translation>Zone Select</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:8</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:9</source>
        <translation>Pinpoint</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:10</source>
        <translation>Tracking</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:11</source>
        <translation>Continuous</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:12</source>
        <translation>Snap</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:16</source>
        <translation>AF-S (Focus-priority)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:17</source>
        <translation>AF-C (Focus-priority)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:18</source>
        <translation>AF-A (Focus-priority)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:32</source>
        <translation>Contrast-detect (Focus-priority)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:33</source>
        <translation>Tracking Contrast-detect (Focus-priority)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:272</source>
        <translation>AF-S (Release-priority)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:273</source>
        <translation>AF-C (Release-priority)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:274</source>
        <translation>AF-A (Release-priority)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:288</source>
        <translation>Contrast-detect (Release-priority)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:32771</source>
        <translation>Manual (Macro)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:32774</source>
        <translation>Auto-area (Macro)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:32775</source>
        <translation>Zone Select (Macro)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:32776</source>
        <translation>Select (Macro)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:32777</source>
        <translation>Pinpoint (Macro)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:32778</source>
        <translation>Tracking (Macro)</translation>
    </message>
    <message>
        <source>Pentax:FocusMode:32779</source>
        <translation>Continuous (Macro)</translation>
    </message>
    <message>
        <source>Pentax:MeteringMode</source>
        <translation>Metering Mode</translation>
    </message>
    <message>
        <source>Pentax:MeteringMode:0</source>
        <translation>Multi-segment</translation>
    </message>
    <message>
        <source>Pentax:MeteringMode:1</source>
        <translation>Center-weighted average</translation>
    </message>
    <message>
        <source>Pentax:MeteringMode:2</source>
        <translation>Spot</translation>
    </message>
    <message>
        <source>Pentax:MeteringMode:6</source>
        <translation>Highlight</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance</source>
        <translation>White Balance</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:0</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:1</source>
        <translation>Daylight</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:2</source>
        <translation>Shade</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:3</source>
        <translation>Fluorescent</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:4</source>
        <translation>Tungsten</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:5</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:6</source>
        <translation>Daylight Fluorescent</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:7</source>
        <translation>Day White Fluorescent</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:8</source>
        <translation>White Fluorescent</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:9</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:10</source>
        <translation>Cloudy</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:11</source>
        <translation>Warm White Fluorescent</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:14</source>
        <translation>Multi Auto</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:15</source>
        <translation>Color Temperature Enhancement</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:17</source>
        <translation>Kelvin</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:65534</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalance:65535</source>
        <translation>User-Selected</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalanceMode</source>
        <translation>White Balance Mode</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalanceMode:1</source>
        <translation>Auto (Daylight)</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalanceMode:2</source>
        <translation>Auto (Shade)</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalanceMode:3</source>
        <translation>Auto (Flash)</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalanceMode:4</source>
        <translation>Auto (Tungsten)</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalanceMode:6</source>
        <translation>Auto (Daylight Fluorescent)</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalanceMode:7</source>
        <translation>Auto (Day White Fluorescent)</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalanceMode:8</source>
        <translation>Auto (White Fluorescent)</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalanceMode:10</source>
        <translation>Auto (Cloudy)</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalanceMode:65534</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>Pentax:WhiteBalanceMode:65535</source>
        <translation>User-Selected</translation>
    </message>
    <message>
        <source>Pentax:Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Pentax:Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Pentax:Sharpness</source>
        <translation>Sharpness</translation>
    </message>
    <message>
        <source>Pentax:WorldTimeLocation</source>
        <translation>World Time Location</translation>
    </message>
    <message>
        <source>Pentax:WorldTimeLocation:0</source>
        <translation>Hometown</translation>
    </message>
    <message>
        <source>Pentax:WorldTimeLocation:1</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Pentax:HometownCity</source>
        <translation>Hometown City</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:0</source>
        <translation>Pago Pago</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:1</source>
        <translation>Honolulu</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:2</source>
        <translation>Anchorage</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:3</source>
        <translation>Vancouver</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:4</source>
        <translation>San Francisco</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:5</source>
        <translation>Los Angeles</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:6</source>
        <translation>Calgary</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:7</source>
        <translation>Denver</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:8</source>
        <translation>Mexico City</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:9</source>
        <translation>Chicago</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:10</source>
        <translation>Miami</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:11</source>
        <translation>Toronto</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:12</source>
        <translation>New York</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:13</source>
        <translation>Santiago</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:14</source>
        <translation>Caracus</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:15</source>
        <translation>Halifax</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:16</source>
        <translation>Buenos Aires</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:17</source>
        <translation>Sao Paulo</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:18</source>
        <translation>Rio de Janeiro</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:19</source>
        <translation>Madrid</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:20</source>
        <translation>London</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:21</source>
        <translation>Paris</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:22</source>
        <translation>Milan</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:23</source>
        <translation>Rome</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:24</source>
        <translation>Berlin</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:25</source>
        <translation>Johannesburg</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:26</source>
        <translation>Istanbul</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:27</source>
        <translation>Cairo</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:28</source>
        <translation>Jerusalem</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:29</source>
        <translation>Moscow</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:30</source>
        <translation>Jeddah</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:31</source>
        <translation>Tehran</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:32</source>
        <translation>Dubai</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:33</source>
        <translation>Karachi</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:34</source>
        <translation>Kabul</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:35</source>
        <translation>Male</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:36</source>
        <translation>Delhi</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:37</source>
        <translation>Colombo</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:38</source>
        <translation>Kathmandu</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:39</source>
        <translation>Dacca</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:40</source>
        <translation>Yangon</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:41</source>
        <translation>Bangkok</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:42</source>
        <translation>Kuala Lumpur</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:43</source>
        <translation>Vientiane</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:44</source>
        <translation>Singapore</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:45</source>
        <translation>Phnom Penh</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:46</source>
        <translation>Ho Chi Minh</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:47</source>
        <translation>Jakarta</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:48</source>
        <translation>Hong Kong</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:49</source>
        <translation>Perth</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:50</source>
        <translation>Beijing</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:51</source>
        <translation>Shanghai</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:52</source>
        <translation>Manila</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:53</source>
        <translation>Taipei</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:54</source>
        <translation>Seoul</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:55</source>
        <translation>Adelaide</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:56</source>
        <translation>Tokyo</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:57</source>
        <translation>Guam</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:58</source>
        <translation>Sydney</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:59</source>
        <translation>Noumea</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:60</source>
        <translation>Wellington</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:61</source>
        <translation>Auckland</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:62</source>
        <translation>Lima</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:63</source>
        <translation>Dakar</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:64</source>
        <translation>Algiers</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:65</source>
        <translation>Helsinki</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:66</source>
        <translation>Athens</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:67</source>
        <translation>Nairobi</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:68</source>
        <translation>Amsterdam</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:69</source>
        <translation>Stockholm</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:70</source>
        <translation>Lisbon</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:71</source>
        <translation>Copenhagen</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:72</source>
        <translation>Warsaw</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:73</source>
        <translation>Prague</translation>
    </message>
    <message>
        <source>Pentax:HometownCity:74</source>
        <translation>Budapest</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity</source>
        <translation>Destination City</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:0</source>
        <translation>Pago Pago</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:1</source>
        <translation>Honolulu</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:2</source>
        <translation>Anchorage</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:3</source>
        <translation>Vancouver</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:4</source>
        <translation>San Francisco</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:5</source>
        <translation>Los Angeles</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:6</source>
        <translation>Calgary</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:7</source>
        <translation>Denver</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:8</source>
        <translation>Mexico City</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:9</source>
        <translation>Chicago</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:10</source>
        <translation>Miami</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:11</source>
        <translation>Toronto</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:12</source>
        <translation>New York</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:13</source>
        <translation>Santiago</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:14</source>
        <translation>Caracus</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:15</source>
        <translation>Halifax</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:16</source>
        <translation>Buenos Aires</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:17</source>
        <translation>Sao Paulo</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:18</source>
        <translation>Rio de Janeiro</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:19</source>
        <translation>Madrid</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:20</source>
        <translation>London</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:21</source>
        <translation>Paris</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:22</source>
        <translation>Milan</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:23</source>
        <translation>Rome</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:24</source>
        <translation>Berlin</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:25</source>
        <translation>Johannesburg</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:26</source>
        <translation>Istanbul</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:27</source>
        <translation>Cairo</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:28</source>
        <translation>Jerusalem</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:29</source>
        <translation>Moscow</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:30</source>
        <translation>Jeddah</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:31</source>
        <translation>Tehran</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:32</source>
        <translation>Dubai</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:33</source>
        <translation>Karachi</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:34</source>
        <translation>Kabul</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:35</source>
        <translation>Male</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:36</source>
        <translation>Delhi</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:37</source>
        <translation>Colombo</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:38</source>
        <translation>Kathmandu</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:39</source>
        <translation>Dacca</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:40</source>
        <translation>Yangon</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:41</source>
        <translation>Bangkok</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:42</source>
        <translation>Kuala Lumpur</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:43</source>
        <translation>Vientiane</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:44</source>
        <translation>Singapore</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:45</source>
        <translation>Phnom Penh</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:46</source>
        <translation>Ho Chi Minh</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:47</source>
        <translation>Jakarta</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:48</source>
        <translation>Hong Kong</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:49</source>
        <translation>Perth</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:50</source>
        <translation>Beijing</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:51</source>
        <translation>Shanghai</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:52</source>
        <translation>Manila</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:53</source>
        <translation>Taipei</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:54</source>
        <translation>Seoul</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:55</source>
        <translation>Adelaide</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:56</source>
        <translation>Tokyo</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:57</source>
        <translation>Guam</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:58</source>
        <translation>Sydney</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:59</source>
        <translation>Noumea</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:60</source>
        <translation>Wellington</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:61</source>
        <translation>Auckland</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:62</source>
        <translation>Lima</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:63</source>
        <translation>Dakar</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:64</source>
        <translation>Algiers</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:65</source>
        <translation>Helsinki</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:66</source>
        <translation>Athens</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:67</source>
        <translation>Nairobi</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:68</source>
        <translation>Amsterdam</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:69</source>
        <translation>Stockholm</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:70</source>
        <translation>Lisbon</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:71</source>
        <translation>Copenhagen</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:72</source>
        <translation>Warsaw</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:73</source>
        <translation>Prague</translation>
    </message>
    <message>
        <source>Pentax:DestinationCity:74</source>
        <translation>Budapest</translation>
    </message>
    <message>
        <source>Pentax:ColorSpace</source>
        <translation>Color Space</translation>
    </message>
    <message>
        <source>Pentax:ColorSpace:0</source>
        <translation>sRGB</translation>
    </message>
    <message>
        <source>Pentax:ColorSpace:1</source>
        <translation>Adobe RGB</translation>
    </message>
    <message>
        <source>Pentax:AELock</source>
        <translation>AE Lock</translation>
    </message>
    <message>
        <source>Pentax:AELock:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Pentax:AELock:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Pentax:NoiseReduction</source>
        <translation>Noise Reduction</translation>
    </message>
    <message>
        <source>Pentax:NoiseReduction:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Pentax:NoiseReduction:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Pentax:ImageTone</source>
        <translation>Image Tone</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:0</source>
        <translation>Natural</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:1</source>
        <translation>Bright</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:2</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:3</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:4</source>
        <translation>Vibrant</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:5</source>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:6</source>
        <translation>Muted</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:7</source>
        <translation>Reversal Film</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:8</source>
        <translation>Bleach Bypass</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:9</source>
        <translation>Radiant</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:10</source>
        <translation>Cross Processing</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:11</source>
        <translation>Flat</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:256</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:257</source>
        <translation>Vivid</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:258</source>
        <translation>Monotone</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:259</source>
        <translation>Soft Monotone</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:260</source>
        <translation>Hard Monotone</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:261</source>
        <translation>Hi-contrast B&amp;W</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:262</source>
        <translation>Positive Film</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:263</source>
        <translation>Bleach Bypass 2</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:264</source>
        <translation>Retro</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:265</source>
        <translation>HDR Tone</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:266</source>
        <translation>Cross Processing 2</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:267</source>
        <translation>Negative Film</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:32768</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:32769</source>
        <translation>Hard</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:32770</source>
        <translation>Soft</translation>
    </message>
    <message>
        <source>Pentax:ImageTone:33024</source>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess</source>
        <translation>Raw Development Process</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:1</source>
        <translation>1 (K10D,K200D,K2000,K-m)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:3</source>
        <translation>3 (K20D)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:4</source>
        <translation>4 (K-7)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:5</source>
        <translation>5 (K-x)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:6</source>
        <translation>6 (645D)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:7</source>
        <translation>7 (K-r)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:8</source>
        <translation>8 (K-5,K-5II,K-5IIs)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:9</source>
        <translation>9 (Q)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:10</source>
        <translation>10 (K-01,K-30,K-50,K-500)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:11</source>
        <translation>11 (Q10)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:12</source>
        <translation>12 (MX-1,Q-S1,Q7)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:13</source>
        <translation>13 (K-3,K-3II)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:14</source>
        <translation>14 (645Z)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:15</source>
        <translation>15 (K-S1,K-S2)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:16</source>
        <translation>16 (K-1)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:17</source>
        <translation>17 (K-70)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:18</source>
        <translation>18 (KP)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:19</source>
        <translation>19 (GR III)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:20</source>
        <translation>20 (K-3III)</translation>
    </message>
    <message>
        <source>Pentax:RawDevelopmentProcess:21</source>
        <translation>21 (K-3IIIMonochrome)</translation>
    </message>
    <message>
        <source>Pentax:Hue</source>
        <translation>Hue</translation>
    </message>
    <message>
        <source>Pentax:Hue:0</source>
        <translation>-2</translation>
    </message>
    <message>
        <source>Pentax:Hue:1</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Pentax:Hue:2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>Pentax:Hue:3</source>
        <translation>-1</translation>
    </message>
    <message>
        <source>Pentax:Hue:4</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Pentax:Hue:5</source>
        <translation>-3</translation>
    </message>
    <message>
        <source>Pentax:Hue:6</source>
        <translation>3</translation>
    </message>
    <message>
        <source>Pentax:Hue:7</source>
        <translation>-4</translation>
    </message>
    <message>
        <source>Pentax:Hue:8</source>
        <translation>4</translation>
    </message>
    <message>
        <source>Pentax:Hue:65535</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Pentax:FineSharpness</source>
        <translation>Fine Sharpness</translation>
    </message>
    <message>
        <source>Pentax:HighISONoiseReduction</source>
        <translation>High ISO Noise Reduction</translation>
    </message>
    <message>
        <source>Pentax:MonochromeFilterEffect</source>
        <translation>Monochrome Filter Effect</translation>
    </message>
    <message>
        <source>Pentax:MonochromeFilterEffect:1</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Pentax:MonochromeFilterEffect:2</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Pentax:MonochromeFilterEffect:3</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Pentax:MonochromeFilterEffect:4</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Pentax:MonochromeFilterEffect:5</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Pentax:MonochromeFilterEffect:6</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Pentax:MonochromeFilterEffect:7</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Pentax:MonochromeFilterEffect:8</source>
        <translation>Infrared</translation>
    </message>
    <message>
        <source>Pentax:MonochromeFilterEffect:65535</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Pentax:MonochromeToning</source>
        <translation>Monochrome Toning</translation>
    </message>
    <message>
        <source>Pentax:MonochromeToning:0</source>
        <translation>-4</translation>
    </message>
    <message>
        <source>Pentax:MonochromeToning:1</source>
        <translation>-3</translation>
    </message>
    <message>
        <source>Pentax:MonochromeToning:2</source>
        <translation>-2</translation>
    </message>
    <message>
        <source>Pentax:MonochromeToning:3</source>
        <translation>-1</translation>
    </message>
    <message>
        <source>Pentax:MonochromeToning:4</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Pentax:MonochromeToning:5</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Pentax:MonochromeToning:6</source>
        <translation>2</translation>
    </message>
    <message>
        <source>Pentax:MonochromeToning:7</source>
        <translation>3</translation>
    </message>
    <message>
        <source>Pentax:MonochromeToning:8</source>
        <translation>4</translation>
    </message>
    <message>
        <source>Pentax:MonochromeToning:65535</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Pentax:ShadowCorrection</source>
        <translation>Shadow Correction</translation>
    </message>
    <message>
        <source>Pentax:ShadowCorrection:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Pentax:ShadowCorrection:1</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Pentax:ShadowCorrection:2</source>
        <translation>Auto 2</translation>
    </message>
    <message>
        <source>Pentax:ShadowCorrection:0 0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Pentax:ShadowCorrection:1 1</source>
        <translation>Weak</translation>
    </message>
    <message>
        <source>Pentax:ShadowCorrection:1 2</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Pentax:ShadowCorrection:1 3</source>
        <translation>Strong</translation>
    </message>
    <message>
        <source>Pentax:ShadowCorrection:2 4</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Pentax:CrossProcess</source>
        <translation>Cross Process</translation>
    </message>
    <message>
        <source>Pentax:CrossProcess:0</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Pentax:CrossProcess:1</source>
        <translation>Random</translation>
    </message>
    <message>
        <source>Pentax:CrossProcess:2</source>
        <translation>Preset 1</translation>
    </message>
    <message>
        <source>Pentax:CrossProcess:3</source>
        <translation>Preset 2</translation>
    </message>
    <message>
        <source>Pentax:CrossProcess:4</source>
        <translation>Preset 3</translation>
    </message>
    <message>
        <source>Pentax:CrossProcess:33</source>
        <translation>Favorite 1</translation>
    </message>
    <message>
        <source>Pentax:CrossProcess:34</source>
        <translation>Favorite 2</translation>
    </message>
    <message>
        <source>Pentax:CrossProcess:35</source>
        <translation>Favorite 3</translation>
    </message>
    <message>
        <source>Pentax:AspectRatio</source>
        <translation>Aspect Ratio</translation>
    </message>
    <message>
        <source>Pentax:AspectRatio:0</source>
        <translation>4:3</translation>
    </message>
    <message>
        <source>Pentax:AspectRatio:1</source>
        <translation>3:2</translation>
    </message>
    <message>
        <source>Pentax:AspectRatio:2</source>
        <translation>16:9</translation>
    </message>
    <message>
        <source>Pentax:AspectRatio:3</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Pentax:ShutterType</source>
        <translation>Shutter Type</translation>
    </message>
    <message>
        <source>Pentax:ShutterType:0</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Pentax:ShutterType:1</source>
        <translation>Electronic</translation>
    </message>
    <message>
        <source>Pentax:SerialNumber</source>
        <translation>Serial Number</translation>
    </message>
    <message>
        <source>Leica:Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Leica:Quality:1</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Leica:Quality:2</source>
        <translation>Basic</translation>
    </message>
    <message>
        <source>Leica:UserProfile</source>
        <translation>User Profile</translation>
    </message>
    <message>
        <source>Leica:UserProfile:1</source>
        <translation>User Profile 1</translation>
    </message>
    <message>
        <source>Leica:UserProfile:2</source>
        <translation>User Profile 2</translation>
    </message>
    <message>
        <source>Leica:UserProfile:3</source>
        <translation>User Profile 3</translation>
    </message>
    <message>
        <source>Leica:UserProfile:4</source>
        <translation>User Profile 0 (Dynamic)</translation>
    </message>
    <message>
        <source>Leica:WhiteBalance</source>
        <translation>White Balance</translation>
    </message>
    <message>
        <source>Leica:WhiteBalance:0</source>
        <translation>Auto or Manual</translation>
    </message>
    <message>
        <source>Leica:WhiteBalance:1</source>
        <translation>Daylight</translation>
    </message>
    <message>
        <source>Leica:WhiteBalance:2</source>
        <translation>Fluorescent</translation>
    </message>
    <message>
        <source>Leica:WhiteBalance:3</source>
        <translation>Tungsten</translation>
    </message>
    <message>
        <source>Leica:WhiteBalance:4</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Leica:WhiteBalance:10</source>
        <translation>Cloudy</translation>
    </message>
    <message>
        <source>Leica:WhiteBalance:11</source>
        <translation>Shade</translation>
    </message>
    <message>
        <source>Leica:LensType</source>
        <translation>Lens Type</translation>
    </message>
    <message>
        <source>Leica:LensType:1</source>
        <translation>Elmarit-M 21mm f/2.8</translation>
    </message>
    <message>
        <source>Leica:LensType:3</source>
        <translation>Elmarit-M 28mm f/2.8 (III)</translation>
    </message>
    <message>
        <source>Leica:LensType:4</source>
        <translation>Tele-Elmarit-M 90mm f/2.8 (II)</translation>
    </message>
    <message>
        <source>Leica:LensType:5</source>
        <translation>Summilux-M 50mm f/1.4 (II)</translation>
    </message>
    <message>
        <source>Leica:LensType:6</source>
        <translation>Summicron-M 35mm f/2 (IV)</translation>
    </message>
    <message>
        <source>Leica:LensType:7</source>
        <translation>Summicron-M 90mm f/2 (II)</translation>
    </message>
    <message>
        <source>Leica:LensType:9</source>
        <translation>Elmarit-M 135mm f/2.8 (I/II)</translation>
    </message>
    <message>
        <source>Leica:LensType:11</source>
        <translation>Summaron-M 28mm f/5.6</translation>
    </message>
    <message>
        <source>Leica:LensType:12</source>
        <translation>Thambar-M 90mm f/2.2</translation>
    </message>
    <message>
        <source>Leica:LensType:16</source>
        <translation>Tri-Elmar-M 16-18-21mm f/4 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:23</source>
        <translation>Summicron-M 50mm f/2 (III)</translation>
    </message>
    <message>
        <source>Leica:LensType:24</source>
        <translation>Elmarit-M 21mm f/2.8 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:25</source>
        <translation>Elmarit-M 24mm f/2.8 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:26</source>
        <translation>Summicron-M 28mm f/2 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:27</source>
        <translation>Elmarit-M 28mm f/2.8 (IV)</translation>
    </message>
    <message>
        <source>Leica:LensType:28</source>
        <translation>Elmarit-M 28mm f/2.8 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:29</source>
        <translation>Summilux-M 35mm f/1.4 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:30</source>
        <translation>Summicron-M 35mm f/2 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:31</source>
        <translation>Noctilux-M 50mm f/1</translation>
    </message>
    <message>
        <source>Leica:LensType:32</source>
        <translation>Summilux-M 50mm f/1.4 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:33</source>
        <translation>Summicron-M 50mm f/2 (IV, V)</translation>
    </message>
    <message>
        <source>Leica:LensType:34</source>
        <translation>Elmar-M 50mm f/2.8</translation>
    </message>
    <message>
        <source>Leica:LensType:35</source>
        <translation>Summilux-M 75mm f/1.4</translation>
    </message>
    <message>
        <source>Leica:LensType:36</source>
        <translation>Apo-Summicron-M 75mm f/2 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:37</source>
        <translation>Apo-Summicron-M 90mm f/2 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:38</source>
        <translation>Elmarit-M 90mm f/2.8</translation>
    </message>
    <message>
        <source>Leica:LensType:39</source>
        <translation>Macro-Elmar-M 90mm f/4</translation>
    </message>
    <message>
        <source>Leica:LensType:40</source>
        <translation>Macro-Adapter M</translation>
    </message>
    <message>
        <source>Leica:LensType:41</source>
        <translation>Apo-Summicron-M 50mm f/2 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:42</source>
        <translation>Tri-Elmar-M 28-35-50mm f/4 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:43</source>
        <translation>Summarit-M 35mm f/2.5</translation>
    </message>
    <message>
        <source>Leica:LensType:44</source>
        <translation>Summarit-M 50mm f/2.5</translation>
    </message>
    <message>
        <source>Leica:LensType:45</source>
        <translation>Summarit-M 75mm f/2.5</translation>
    </message>
    <message>
        <source>Leica:LensType:46</source>
        <translation>Summarit-M 90mm f/2.5</translation>
    </message>
    <message>
        <source>Leica:LensType:47</source>
        <translation>Summilux-M 21mm f/1.4 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:48</source>
        <translation>Summilux-M 24mm f/1.4 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:49</source>
        <translation>Noctilux-M 50mm f/0.95 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:50</source>
        <translation>Elmar-M 24mm f/3.8 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:51</source>
        <translation>Super-Elmar-M 21mm f/3.4 Asph</translation>
    </message>
    <message>
        <source>Leica:LensType:52</source>
        <translation>Apo-Telyt-M 18mm f/3.8 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:53</source>
        <translation>Apo-Telyt-M 135mm f/3.4</translation>
    </message>
    <message>
        <source>Leica:LensType:58</source>
        <translation>Noctilux-M 75mm f/1.25 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:0 0</source>
        <translation>Uncoded lens</translation>
    </message>
    <message>
        <source>Leica:LensType:6 0</source>
        <translation>Summilux-M 35mm f/1.4</translation>
    </message>
    <message>
        <source>Leica:LensType:9 0</source>
        <translation>Apo-Telyt-M 135mm f/3.4</translation>
    </message>
    <message>
        <source>Leica:LensType:16 1</source>
        <translation>Tri-Elmar-M 16-18-21mm f/4 ASPH. (at 16mm)</translation>
    </message>
    <message>
        <source>Leica:LensType:16 2</source>
        <translation>Tri-Elmar-M 16-18-21mm f/4 ASPH. (at 18mm)</translation>
    </message>
    <message>
        <source>Leica:LensType:16 3</source>
        <translation>Tri-Elmar-M 16-18-21mm f/4 ASPH. (at 21mm)</translation>
    </message>
    <message>
        <source>Leica:LensType:29 0</source>
        <translation>Summilux-M 35mm f/1.4 ASPHERICAL</translation>
    </message>
    <message>
        <source>Leica:LensType:31 0</source>
        <translation>Noctilux-M 50mm f/1.2</translation>
    </message>
    <message>
        <source>Leica:LensType:39 0</source>
        <translation>Tele-Elmar-M 135mm f/4 (II)</translation>
    </message>
    <message>
        <source>Leica:LensType:41 3</source>
        <translation>Apo-Summicron-M 50mm f/2 ASPH.</translation>
    </message>
    <message>
        <source>Leica:LensType:42 1</source>
        <translation>Tri-Elmar-M 28-35-50mm f/4 ASPH. (at 28mm)</translation>
    </message>
    <message>
        <source>Leica:LensType:42 2</source>
        <translation>Tri-Elmar-M 28-35-50mm f/4 ASPH. (at 35mm)</translation>
    </message>
    <message>
        <source>Leica:LensType:42 3</source>
        <translation>Tri-Elmar-M 28-35-50mm f/4 ASPH. (at 50mm)</translation>
    </message>
    <message>
        <source>Leica:LensType:51 2</source>
        <translation>Super-Elmar-M 14mm f/3.8 Asph</translation>
    </message>
    <message>
        <source>Leica:LensType:53 2</source>
        <translation>Apo-Telyt-M 135mm f/3.4</translation>
    </message>
    <message>
        <source>Leica:LensType:53 3</source>
        <translation>Apo-Summicron-M 50mm f/2 (VI)</translation>
    </message>
    <message>
        <source>Leica:UV-IRFilterCorrection</source>
        <translation>UV/IR Filter Correction</translation>
    </message>
    <message>
        <source>Leica:UV-IRFilterCorrection:0</source>
        <translation>Not Active</translation>
    </message>
    <message>
        <source>Leica:UV-IRFilterCorrection:1</source>
        <translation>Active</translation>
    </message>
</context>
</TS>
