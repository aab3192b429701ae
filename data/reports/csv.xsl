<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!-- One line per shot, fields separated by commas, for a spreadsheet. Numbers have no units. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform"
                xmlns:math="http://exslt.org/math" xmlns:str="http://exslt.org/strings"
                exclude-result-prefixes="math str">
  <xsl:import href="parts/shot.xsl"/>
  <xsl:output method="text"/>

  <xsl:template match="/JPEGs">
    <xsl:text>Folder,File,Title,Date,Camera,Lens,Exposure time,Aperture,ISO,Focal length,Keywords,Latitude,Longitude&#13;&#10;</xsl:text>
    <xsl:apply-templates select="JPEG"/>
  </xsl:template>

  <xsl:template match="JPEG">
    <xsl:variable name="date"><xsl:apply-templates select="." mode="date"/></xsl:variable>
    <xsl:variable name="title"><xsl:apply-templates select="." mode="title"/></xsl:variable>
    <xsl:variable name="camera"><xsl:apply-templates select="." mode="camera"/></xsl:variable>
    <xsl:variable name="lens"><xsl:apply-templates select="." mode="lens"/></xsl:variable>
    <xsl:variable name="time"><xsl:apply-templates select="." mode="time"/></xsl:variable>
    <xsl:variable name="aperture"><xsl:apply-templates select="." mode="aperture"/></xsl:variable>
    <xsl:variable name="focal"><xsl:apply-templates select="." mode="focal"/></xsl:variable>
    <xsl:call-template name="field"><xsl:with-param name="text" select="@folder"/></xsl:call-template>
    <xsl:call-template name="field"><xsl:with-param name="text" select="@fileName"/></xsl:call-template>
    <xsl:call-template name="field"><xsl:with-param name="text" select="$title"/></xsl:call-template>
    <xsl:call-template name="field"><xsl:with-param name="text" select="$date"/></xsl:call-template>
    <xsl:call-template name="field"><xsl:with-param name="text" select="$camera"/></xsl:call-template>
    <xsl:call-template name="field"><xsl:with-param name="text" select="$lens"/></xsl:call-template>
    <xsl:call-template name="field"><xsl:with-param name="text" select="substring-before($time, ' ')"/></xsl:call-template>
    <xsl:call-template name="field"><xsl:with-param name="text" select="substring-after($aperture, '/')"/></xsl:call-template>
    <xsl:call-template name="field"><xsl:with-param name="text" select="Exif/IFDE/IFD[@id='8827']"/></xsl:call-template>
    <xsl:call-template name="field"><xsl:with-param name="text" select="substring-before($focal, ' ')"/></xsl:call-template>
    <xsl:call-template name="field"><xsl:with-param name="text" select="Exif/IFD[@id='9C9E']"/></xsl:call-template>
    <xsl:apply-templates select="." mode="latitude"/>
    <xsl:text>,</xsl:text>
    <xsl:apply-templates select="." mode="longitude"/>
    <xsl:text>&#13;&#10;</xsl:text>
  </xsl:template>

  <xsl:template name="field">
    <xsl:param name="text"/>
    <xsl:call-template name="quoted"><xsl:with-param name="text" select="$text"/></xsl:call-template>
    <xsl:text>,</xsl:text>
  </xsl:template>

  <!-- Only commas, quotes and line breaks need quotes around the field. -->
  <xsl:template name="quoted">
    <xsl:param name="text"/>
    <xsl:variable name="cell"><xsl:call-template name="plain"><xsl:with-param name="text" select="$text"/></xsl:call-template></xsl:variable>
    <xsl:choose>
      <xsl:when test="$cell != translate($cell, ',&quot;&#13;&#10;', '')">
        <xsl:value-of select="concat('&quot;', str:replace($cell, '&quot;', '&quot;&quot;'), '&quot;')"/>
      </xsl:when>
      <xsl:otherwise><xsl:value-of select="$cell"/></xsl:otherwise>
    </xsl:choose>
  </xsl:template>

  <!-- A spreadsheet would run a text that begins like a formula, so an apostrophe goes in front of it. Numbers and
       fractions may begin with a sign. -->
  <xsl:template name="plain">
    <xsl:param name="text"/>
    <xsl:variable name="first" select="substring($text, 1, 1)"/>
    <xsl:variable name="isNumber" select="contains('+-', $first) and string-length($text) &gt; 1 and
                                          not(translate(substring($text, 2), '0123456789./', ''))"/>
    <xsl:if test="$first and contains('=+-@', $first) and not($isNumber)">'</xsl:if>
    <xsl:value-of select="$text"/>
  </xsl:template>

  <!-- What a spreadsheet sorts and counts is the same in every language. -->

  <!-- 2023:05:14 06:42:18 as 2023-05-14 06:42. -->
  <xsl:template match="JPEG" mode="date">
    <xsl:variable name="shot" select="normalize-space(Exif/IFDE/IFD[@id='9003'])"/>
    <xsl:if test="translate(substring($shot, 1, 4), '0 ', '')">
      <xsl:value-of select="concat(translate(substring($shot, 1, 10), ':', '-'), substring($shot, 11, 6))"/>
    </xsl:if>
  </xsl:template>

  <!-- 1/125 s; 8 s; 10/1250 as 1/125 s. Some cameras give it only as a power of two. -->
  <xsl:template match="JPEG" mode="time">
    <xsl:variable name="time" select="Exif/IFDE/IFD[@id='829A']"/>
    <xsl:variable name="power" select="Exif/IFDE/IFD[@id='9201']"/>
    <xsl:variable name="given" select="substring-before($time, '/') div substring-after($time, '/')"/>
    <xsl:variable name="halvings" select="substring-before($power, '/') div substring-after($power, '/')"/>
    <xsl:variable name="meant" select="math:power(2, -$halvings)"/>
    <xsl:choose>
      <xsl:when test="$given &gt; 0"><xsl:call-template name="seconds"><xsl:with-param name="number" select="$given"/></xsl:call-template></xsl:when>
      <xsl:when test="not($time) and $meant &gt; 0"><xsl:call-template name="seconds"><xsl:with-param name="number" select="$meant"/></xsl:call-template></xsl:when>
    </xsl:choose>
  </xsl:template>

  <xsl:template name="seconds">
    <xsl:param name="number"/>
    <xsl:choose>
      <xsl:when test="$number &lt; 0.00001 or $number &gt; 1000000"/>
      <xsl:when test="$number * 3 &lt; 1"><xsl:value-of select="concat('1/', round(1 div $number), ' s')"/></xsl:when>
      <xsl:otherwise><xsl:value-of select="concat(format-number($number, '0.#'), ' s')"/></xsl:otherwise>
    </xsl:choose>
  </xsl:template>

  <xsl:template match="JPEG" mode="aperture">
    <xsl:variable name="aperture" select="Exif/IFDE/IFD[@id='829D']"/>
    <xsl:variable name="power" select="Exif/IFDE/IFD[@id='9202']"/>
    <xsl:variable name="given" select="substring-before($aperture, '/') div substring-after($aperture, '/')"/>
    <xsl:variable name="doublings" select="substring-before($power, '/') div substring-after($power, '/')"/>
    <xsl:variable name="meant" select="math:power(2, $doublings div 2)"/>
    <xsl:choose>
      <xsl:when test="$given &gt; 0 and $given &lt; 1000">f/<xsl:value-of select="format-number($given, '0.#')"/></xsl:when>
      <xsl:when test="not($aperture) and $meant &gt; 0 and $meant &lt; 1000">f/<xsl:value-of select="format-number($meant, '0.#')"/></xsl:when>
    </xsl:choose>
  </xsl:template>

  <xsl:template match="JPEG" mode="focal">
    <xsl:variable name="focal" select="Exif/IFDE/IFD[@id='920A']"/>
    <xsl:variable name="number" select="substring-before($focal, '/') div substring-after($focal, '/')"/>
    <xsl:if test="$number &gt; 0 and $number &lt; 100000"><xsl:value-of select="format-number($number, '0.#')"/> mm</xsl:if>
  </xsl:template>

</xsl:stylesheet>
