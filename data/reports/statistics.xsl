<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!-- A web page that counts the shots by camera, focal length, sensitivity and month, with bars. The text must
     begin with <html, which decides the extension of the report; hence no document type. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform"
                xmlns:exsl="http://exslt.org/common" exclude-result-prefixes="exsl">
  <xsl:import href="parts/shot.xsl"/>
  <xsl:output method="html" indent="no"/>

  <xsl:key name="values" match="value" use="."/>

  <xsl:template match="/JPEGs">
    <xsl:variable name="heading"><xsl:call-template name="words"><xsl:with-param name="text" select="'Statistics'"/></xsl:call-template></xsl:variable>
    <xsl:variable name="language"><xsl:apply-templates select="." mode="language"/></xsl:variable>
    <html lang="{$language}">
      <head>
        <title><xsl:value-of select="$heading"/></title>
        <style>
          body { margin: 2em auto; max-width: 60em; padding: 0 1.5em; background: #fbfaf8; color: #26292c;
                 font: 15px/1.45 "Segoe UI", "Noto Sans", "DejaVu Sans", sans-serif; }
          h1 { margin: 0; font-size: 26px; font-weight: 600; }
          h2 { margin: 34px 0 8px; font-size: 17px; font-weight: 600; }
          p { margin: 4px 0; color: #6b7176; }
          svg { display: block; width: 100%; }
          svg text { font: 13px "Segoe UI", "Noto Sans", "DejaVu Sans", sans-serif; fill: #26292c; }
          svg text.count { fill: #6b7176; }
          svg rect { fill: #c9662b; }
          svg line { stroke: #d8d3cb; }
          @media print { body { margin: 0; max-width: none; background: none; } svg { page-break-inside: avoid; } }
        </style>
      </head>
      <body>
        <h1><xsl:value-of select="$heading"/></h1>
        <p><xsl:apply-templates select="." mode="number"/></p>
        <xsl:variable name="cameras">
          <xsl:for-each select="JPEG"><value><xsl:apply-templates select="." mode="camera"/></value></xsl:for-each>
        </xsl:variable>
        <xsl:variable name="focals">
          <xsl:for-each select="JPEG">
            <xsl:variable name="focal" select="Exif/IFDE/IFD[@id='920A']"/>
            <value number="{substring-before($focal, '/') div substring-after($focal, '/')}"><xsl:apply-templates select="." mode="focal"/></value>
          </xsl:for-each>
        </xsl:variable>
        <xsl:variable name="isos">
          <xsl:for-each select="JPEG">
            <value number="{Exif/IFDE/IFD[@id='8827']}"><xsl:apply-templates select="." mode="iso"/></value>
          </xsl:for-each>
        </xsl:variable>
        <xsl:variable name="months">
          <xsl:for-each select="JPEG"><value><xsl:apply-templates select="." mode="month"/></value></xsl:for-each>
        </xsl:variable>
        <xsl:apply-templates select="exsl:node-set($cameras)" mode="chart">
          <xsl:with-param name="title" select="'Camera'"/>
          <xsl:with-param name="order" select="'count'"/>
        </xsl:apply-templates>
        <xsl:apply-templates select="exsl:node-set($focals)" mode="chart">
          <xsl:with-param name="title" select="'Focal length'"/>
          <xsl:with-param name="order" select="'number'"/>
        </xsl:apply-templates>
        <xsl:apply-templates select="exsl:node-set($isos)" mode="chart">
          <xsl:with-param name="title" select="'Sensitivity'"/>
          <xsl:with-param name="order" select="'number'"/>
        </xsl:apply-templates>
        <xsl:apply-templates select="exsl:node-set($months)" mode="chart">
          <xsl:with-param name="title" select="'Month'"/>
          <xsl:with-param name="order" select="'text'"/>
        </xsl:apply-templates>
      </body>
    </html>
  </xsl:template>

  <!-- A chart of a list of values: one bar for each distinct value. -->
  <xsl:template match="/" mode="chart">
    <xsl:param name="title"/>
    <xsl:param name="order"/>
    <xsl:variable name="rows">
      <xsl:for-each select="value[generate-id() = generate-id(key('values', .)[1])]">
        <xsl:variable name="count" select="count(key('values', .))"/>
        <row label="{.}" count="{$count}">
          <xsl:attribute name="place">
            <xsl:choose>
              <xsl:when test="normalize-space(.) = ''">999999999</xsl:when>
              <xsl:when test="$order = 'count'"><xsl:value-of select="-$count"/></xsl:when>
              <xsl:when test="$order = 'number'"><xsl:value-of select="number(@number)"/></xsl:when>
              <xsl:otherwise>0</xsl:otherwise>
            </xsl:choose>
          </xsl:attribute>
        </row>
      </xsl:for-each>
    </xsl:variable>
    <h2><xsl:call-template name="words"><xsl:with-param name="text" select="$title"/></xsl:call-template></h2>
    <xsl:apply-templates select="exsl:node-set($rows)" mode="bars"/>
  </xsl:template>

  <xsl:template match="/" mode="bars">
    <xsl:variable name="most">
      <xsl:for-each select="row">
        <xsl:sort select="@count" data-type="number" order="descending"/>
        <xsl:if test="position() = 1"><xsl:value-of select="@count"/></xsl:if>
      </xsl:for-each>
    </xsl:variable>
    <xsl:variable name="height" select="count(row) * 24 + 4"/>
    <svg viewBox="0 0 840 {$height}" height="{$height}" role="img" preserveAspectRatio="xMinYMin meet">
      <line x1="290" y1="0" x2="290" y2="{$height}"/>
      <xsl:for-each select="row">
        <xsl:sort select="@place" data-type="number"/>
        <xsl:sort select="@label"/>
        <xsl:variable name="top" select="(position() - 1) * 24 + 3"/>
        <xsl:variable name="width" select="round(@count div $most * 480)"/>
        <text x="280" y="{$top + 14}" text-anchor="end">
          <xsl:choose>
            <xsl:when test="normalize-space(@label) = ''"><xsl:call-template name="words"><xsl:with-param name="text" select="'not known'"/></xsl:call-template></xsl:when>
            <xsl:when test="string-length(@label) &gt; 32"><xsl:value-of select="concat(substring(@label, 1, 31), '…')"/></xsl:when>
            <xsl:otherwise><xsl:value-of select="@label"/></xsl:otherwise>
          </xsl:choose>
        </text>
        <rect x="290" y="{$top}" width="{$width}" height="19" rx="2"/>
        <text class="count" x="{298 + $width}" y="{$top + 14}"><xsl:value-of select="@count"/></text>
      </xsl:for-each>
    </svg>
  </xsl:template>

</xsl:stylesheet>
